// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/physical_database.h"

struct sqlite3;
struct sqlite3_stmt;

/// A statement compiled by SQLite. Every operation throws DataError.
class sqlite_statement final : public physical_database::prepared_statement {
public:
    /// Compiles exactly one statement (Jet's forms translated); anything behind it is refused.
    sqlite_statement(sqlite3* connection, const QString& sql);
    ~sqlite_statement() override;
    Q_DISABLE_COPY_MOVE(sqlite_statement)

    void run(const QVariantList& values) override;
    [[nodiscard]] row_store rows(const QVariantList& values) override;

    /// Hands over its rows one by one.
    void for_each_row(const physical_database::row_visitor& visit);

    [[nodiscard]] sqlite3_stmt* handle() const noexcept { return handle_; }

private:
    void bind(int place, const QVariant& value);
    void bind(const QVariantList& values);
    [[nodiscard]] bool step();

    sqlite3* connection_;
    sqlite3_stmt* handle_ = nullptr;
};
