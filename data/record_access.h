// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/literals.h"
#include "data/strconn.h"
#include "platform/database/recordset.h"

#include <QString>

#include <concepts>
#include <exception>
#include <optional>

/// What every record-access class shares: one statement on one fresh connection, and a plain
/// answer. A class derived from it holds its statements and its field list.
class record_access {
public:
    /// The database's connection string.
    QString connection = strconn;

protected:
    record_access() = default;
    ~record_access() = default;
    Q_DISABLE_COPY_MOVE(record_access)

    /// Puts the values' literals into the places %1, %2 … and executes the statement. Any error,
    /// a value that cannot be written among them, gives false.
    template <class... Values>
    [[nodiscard]] static bool execute(const QString& connection_string, const QString& statement,
                                      const Values&... values) {
        try {
            run(connection_string, statement, values...);
            return true;
        } catch (const std::exception&) {
            return false;
        }
    }

    /// The same, and throws the error.
    template <class... Values>
    static void run(const QString& connection_string, const QString& statement,
                    const Values&... values) {
        execute_statement(connection_string, statement.arg(literal(values)...));
    }

    /// Opens the caller's record set on a detached snapshot. Throws DataError.
    void open_detached(Recordset& rs, const QString& statement) const;

    /// Hands over the rows of a query one by one. Throws DataError.
    void for_each_row(const QString& statement, const physical_database::row_visitor& visit) const;

    /// The first row of a query as a record; nothing when there is none or on any error.
    template <std::invocable<const Recordset&> Read>
    [[nodiscard]] auto read_one(const QString& statement, Read read) const
        -> std::optional<std::invoke_result_t<Read, const Recordset&>> {
        try {
            Recordset rs;
            open_detached(rs, statement);
            if (rs.Bof() && rs.Eof()) {
                return std::nullopt;
            }
            return read(rs);
        } catch (const std::exception&) {
            return std::nullopt;
        }
    }

private:
    static void execute_statement(const QString& connection_string, const QString& statement);
};
