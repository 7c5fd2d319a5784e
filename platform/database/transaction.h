// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/physical_database.h"

/// A transaction from here to `commit`, or undone where that is not reached.
class [[nodiscard]] transaction {
public:
    /// Begins. Throws DataError, and then there is nothing to undo.
    explicit transaction(physical_database& database,
                         physical_database::purpose wanted = physical_database::purpose::writing);
    ~transaction();
    Q_DISABLE_COPY_MOVE(transaction)

    /// Makes durable what was done. Throws DataError; what was done is then undone.
    void commit();

private:
    physical_database& database_;
};
