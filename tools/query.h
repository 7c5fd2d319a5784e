// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

class SqliteDatabase;

/// Every row of a query, each value as text; Null is empty. Throws DataError.
[[nodiscard]] QList<QStringList> query_rows(SqliteDatabase& database, const QString& sql);

/// The first column of every row.
[[nodiscard]] QStringList query_column(SqliteDatabase& database, const QString& sql);

/// The whole number that a query gives.
[[nodiscard]] qint64 query_number(SqliteDatabase& database, const QString& sql);
