// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sqlite_database.h"

#include <QVariant>

/// A statement with question marks in place of its values, which may then be any text, also one
/// with quotes in it.
class bound_statement {
public:
    bound_statement(SqliteDatabase& database, const QString& sql);

    /// Runs it with these values in the question marks' order; an invalid one is Null. Throws
    /// DataError.
    void run(const QVariantList& values);

private:
    SqliteDatabase& database_;
    SqliteDatabase::statement statement_;
};
