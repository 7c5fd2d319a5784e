// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

/// The twins' way to the database: SQLite's own calls, as durable as the product's (write-ahead
/// log, every commit on disk when it returns). Throws std::runtime_error.
class plain_database {
public:
    explicit plain_database(const std::string& path);

    using statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

    [[nodiscard]] statement prepare(const std::string& sql);
    /// True while there is a row.
    bool step(const statement& prepared);
    void execute(const std::string& sql);
    /// The first column of the first row.
    [[nodiscard]] int number(const std::string& sql);

private:
    [[noreturn]] void raise() const;

    std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle_{nullptr, sqlite3_close};
};
