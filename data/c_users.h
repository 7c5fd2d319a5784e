// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/record_access.h"

/// Operators in table `users` of the database that `strconn` names.
class c_users : public record_access {
public:
    // These throw DataError.

    /// Opens the whole table.
    void openrs(Recordset& rs) const;
    /// Opens the operators with this name and password. A password of blanks alone counts as empty
    /// and fits one that is empty or Null.
    void open_login(Recordset& rs, const QString& username, const QString& password) const;
    /// Opens the operator with this number.
    void open_user(Recordset& rs, qint32 userid) const;

    [[nodiscard]] bool addrec(const QString& username, const QString& password) const;
    [[nodiscard]] bool updaterec(qint32 userid, const QString& username,
                                 const QString& password) const;
    /// Leaves the operator's rights as they are.
    [[nodiscard]] bool deleterec(qint32 userid) const;
};
