// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/bound_statement.h"

#include <sqlite3.h>

bound_statement::bound_statement(SqliteDatabase& database, const QString& sql)
    : database_(database), statement_(database.prepare(sql)) {}

void bound_statement::run(const QVariantList& values) {
    start(values);
    while (next()) {
    }
}

void bound_statement::start(const QVariantList& values) {
    stop();
    for (qsizetype i = 0; i < values.size(); ++i) {
        const QVariant& value = values.at(i);
        const int place = static_cast<int>(i) + 1;
        if (!value.isValid()) {
            sqlite3_bind_null(statement_.get(), place);
        } else if (value.typeId() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text64(statement_.get(), place, text.constData(),
                                static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT,
                                SQLITE_UTF8);
        } else if (value.typeId() == QMetaType::Double) {
            sqlite3_bind_double(statement_.get(), place, value.toDouble());
        } else {
            sqlite3_bind_int64(statement_.get(), place, value.toLongLong());
        }
    }
}

bool bound_statement::next() {
    try {
        if (database_.step(statement_)) {
            return true;
        }
    } catch (...) {
        stop();
        throw;
    }
    stop();
    return false;
}

void bound_statement::stop() noexcept {
    sqlite3_reset(statement_.get());
}

int bound_statement::column_count() const {
    return sqlite3_column_count(statement_.get());
}

qint64 bound_statement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

QString bound_statement::text(int column) const {
    // The text first: asking for it may be what makes its length.
    const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return QString::fromUtf8(utf8, sqlite3_column_bytes(statement_.get(), column));
}

bool bound_statement::is_null(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}
