// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/bound_statement.h"

#include <sqlite3.h>

bound_statement::bound_statement(SqliteDatabase& database, const QString& sql)
    : database_(database), statement_(database.prepare(sql)) {}

void bound_statement::run(const QVariantList& values) {
    sqlite3_reset(statement_.get());
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
    while (database_.step(statement_)) {
    }
}
