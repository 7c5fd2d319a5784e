// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

#include <string>

/// The most rows that a 16-bit key can number.
inline constexpr int most_rows = 32767;

/// A database in a folder of its own.
class bench_store {
public:
    /// Makes the database and names it in `strconn`.
    bench_store();
    ~bench_store();
    Q_DISABLE_COPY_MOVE(bench_store)

    /// Names this database in `strconn` again.
    void use() const;
    [[nodiscard]] QString folder() const { return folder_.path(); }
    [[nodiscard]] std::string path() const;

    /// Customers in no order; the last differs from all others in every column.
    void fill_customers(int rows) const;
    /// Messages that were due long ago.
    void fill_messages(int rows) const;

private:
    void fill(const char* statement, int rows) const;

    QTemporaryDir folder_;
};
