// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/sqlite_statement.h"

#include "platform/data_error.h"
#include "platform/database/jet_sql.h"
#include "platform/database/sqlite_errors.h"

#include <QScopeGuard>

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool is_blank(QByteArrayView rest) {
    return std::all_of(rest.begin(), rest.end(),
                       [](char c) { return c == ';' || QChar::isSpace(static_cast<uchar>(c)); });
}

void append_cell(row_store& store, sqlite3_stmt* row, int column) {
    switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
        store.append_integer(sqlite3_column_int64(row, column));
        break;
    case SQLITE_FLOAT:
        store.append_real(sqlite3_column_double(row, column));
        break;
    case SQLITE_NULL:
        store.append_null();
        break;
    default: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, column));
        store.append_text({bytes, static_cast<qsizetype>(sqlite3_column_bytes(row, column))});
    }
    }
}

/// The row that a statement has come to.
class sqlite_row final : public physical_database::result_row {
public:
    explicit sqlite_row(sqlite3_stmt* statement) : statement_(statement) {}

    [[nodiscard]] int column(QStringView name) const override {
        int found = sqlite3_column_count(statement_) - 1;
        while (found >= 0 && QString::fromUtf8(sqlite3_column_name(statement_, found))
                                     .compare(name, Qt::CaseInsensitive) != 0) {
            --found;
        }
        return found;
    }

    [[nodiscard]] QVariant value(int column) const override {
        switch (sqlite3_column_type(statement_, column)) {
        case SQLITE_INTEGER:
            return qlonglong{sqlite3_column_int64(statement_, column)};
        case SQLITE_FLOAT:
            return sqlite3_column_double(statement_, column);
        case SQLITE_NULL:
            return {};
        default:
            return text(column);
        }
    }

    [[nodiscard]] QString text(int column) const override {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
        return QString::fromUtf8(bytes, sqlite3_column_bytes(statement_, column));
    }

private:
    sqlite3_stmt* statement_;
};

} // namespace

sqlite_statement::sqlite_statement(sqlite3* connection, const QString& sql)
    : connection_(connection) {
    const QByteArray text = translate_jet_sql(sql).toUtf8();
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(connection, text.constData(), static_cast<int>(text.size()), &handle_,
                           &tail) != SQLITE_OK) {
        raise_sqlite_error(connection);
    }
    // It reads up to the end of the first statement, or up to a NUL.
    if (handle_ == nullptr || !is_blank(QByteArrayView(tail, text.constEnd()))) {
        sqlite3_finalize(handle_);
        throw DataError(DataError::Kind::statement, u"not exactly one statement"_s);
    }
}

sqlite_statement::~sqlite_statement() {
    sqlite3_finalize(handle_);
}

void sqlite_statement::bind(int place, const QVariant& value) {
    int result = SQLITE_OK;
    if (!value.isValid()) {
        result = sqlite3_bind_null(handle_, place);
    } else if (value.typeId() == QMetaType::QString) {
        const QByteArray text = value.toString().toUtf8();
        result = sqlite3_bind_text64(handle_, place, text.constData(),
                                     static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT,
                                     SQLITE_UTF8);
    } else if (value.typeId() == QMetaType::Double) {
        result = sqlite3_bind_double(handle_, place, value.toDouble());
    } else {
        result = sqlite3_bind_int64(handle_, place, value.toLongLong());
    }
    if (result != SQLITE_OK) {
        raise_sqlite_error(connection_);
    }
}

void sqlite_statement::bind(const QVariantList& values) {
    for (qsizetype i = 0; i < values.size(); ++i) {
        bind(static_cast<int>(i) + 1, values.at(i));
    }
}

bool sqlite_statement::step() {
    switch (sqlite3_step(handle_)) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        raise_sqlite_error(connection_);
    }
}

void sqlite_statement::run(const QVariantList& values) {
    const auto rest = qScopeGuard([this] { sqlite3_reset(handle_); }); // what is kept holds no lock
    bind(values);
    while (step()) {
    }
}

void sqlite_statement::for_each_row(const physical_database::row_visitor& visit) {
    const sqlite_row row(handle_);
    while (step()) {
        visit(row);
    }
}

row_store sqlite_statement::rows(const QVariantList& values) {
    const auto rest = qScopeGuard([this] { sqlite3_reset(handle_); });
    bind(values);
    const int columns = sqlite3_column_count(handle_);
    QStringList names;
    for (int i = 0; i < columns; ++i) {
        names.append(QString::fromUtf8(sqlite3_column_name(handle_, i)));
    }
    row_store store(names);
    while (step()) {
        for (int i = 0; i < columns; ++i) {
            append_cell(store, handle_, i);
        }
    }
    return store;
}
