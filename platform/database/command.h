// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// One statement on a connection of its own.
class Command {
public:
    QString ActiveConnection; ///< a connection string
    QString CommandText;

    /// Runs the statement. Throws DataError.
    void Execute() const;
};
