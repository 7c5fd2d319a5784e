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

    /// The same for a statement that gives rows: next() goes to the first of them, then on. Read it
    /// to its end or stop(), or it holds the file's log.
    void start(const QVariantList& values);
    /// True when there is a row; the functions below read it, columns counted from 0. Throws
    /// DataError.
    [[nodiscard]] bool next();
    void stop() noexcept;

    [[nodiscard]] int column_count() const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] bool is_null(int column) const;

private:
    SqliteDatabase& database_;
    SqliteDatabase::statement statement_;
};
