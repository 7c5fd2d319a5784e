// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/record_access.h"

/// The operators' rights in table `rights`, and the functions they are rights to in table
/// `Functions`, of the database that `strconn` names. Every operation throws DataError.
class c_rights : public record_access {
public:
    /// Opens the rights of an operator, on the connection that the record set has.
    static void openrs(Recordset& rs, qint32 userid);
    /// Opens all functions.
    void open_functions(Recordset& rs) const;
    void addrec(qint32 userid, qint32 funid) const;
    void deleterec(qint32 userid, qint32 funid) const;
};
