// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/query.h"

#include "platform/sqlite_database.h"

#include <sqlite3.h>

QList<QStringList> query_rows(SqliteDatabase& database, const QString& sql) {
    const SqliteDatabase::statement prepared = database.prepare(sql);
    sqlite3_stmt* row = prepared.get();
    QList<QStringList> rows;
    while (database.step(prepared)) {
        QStringList& values = rows.emplace_back();
        for (int column = 0; column < sqlite3_column_count(row); ++column) {
            const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, column));
            values.append(QString::fromUtf8(bytes, sqlite3_column_bytes(row, column)));
        }
    }
    return rows;
}

QStringList query_column(SqliteDatabase& database, const QString& sql) {
    QStringList column;
    for (const QStringList& row : query_rows(database, sql)) {
        column.append(row.first());
    }
    return column;
}

qint64 query_number(SqliteDatabase& database, const QString& sql) {
    return query_rows(database, sql).value(0).value(0).toLongLong();
}
