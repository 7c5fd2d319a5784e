// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

struct sqlite3;

/// While it lives no other program has the database file open, nor can open it; its content is not
/// looked at, so that this holds for a damaged one too. A program that was killed keeps nobody out.
class sole_use {
public:
    /// Never waits. Throws DataError (missing_file, locked, cannot_open).
    explicit sole_use(const QString& path);

private:
    struct closer {
        void operator()(sqlite3* handle) const noexcept;
    };
    std::unique_ptr<sqlite3, closer> handle_;
};
