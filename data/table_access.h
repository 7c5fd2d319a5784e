// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/record_access.h"

/// The statements that every table with a key has, %1 for the key, and how a row is read.
template <class Record>
struct table_statements {
    QStringView all;
    QStringView one;
    QStringView removal;
    Record (*read)(const Recordset& row);
};

/// Access to a table, or its view, whose rows have a 16-bit key: what is alike for all of them. A
/// class derived from it writes rows, by their fields or as records.
template <class Record>
class table_access : public record_access {
public:
    /// Opens all rows. Throws DataError.
    void openrs(Recordset& rs) const { open_detached(rs, statements_.all.toString()); }
    /// Nothing when there is no such row, and on any error.
    [[nodiscard]] std::optional<Record> getrec(qint16 key) const {
        return read_one(statements_.one.arg(literal(key)), statements_.read);
    }
    /// False on any error; a row that is not there is none.
    [[nodiscard]] bool deleterec(qint16 key) const {
        return execute(strconn, statements_.removal.toString(), key);
    }

protected:
    explicit table_access(const table_statements<Record>& statements) : statements_(statements) {}
    ~table_access() = default;

private:
    table_statements<Record> statements_;
};
