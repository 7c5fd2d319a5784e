// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/transaction.h"

#include <QString>

#include <memory>

/// A connection to the database that `ConnectionString` names. Every operation throws DataError.
class Connection {
public:
    enum class StateEnum { closed = 0, open = 1 };

    QString ConnectionString;

    void Open();
    /// Closes; an unfinished transaction is rolled back.
    void Close();
    [[nodiscard]] StateEnum State() const;
    /// Runs one statement and drops its rows.
    void Execute(const QString& statement);

    /// What stands behind the open connection; for a transaction, or many runs of one statement.
    [[nodiscard]] physical_database& database() const;

private:
    friend class Recordset;

    std::shared_ptr<physical_database> database_;
};
