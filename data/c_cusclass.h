// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_cusclass.h"
#include "data/table_access.h"

/// Customer classes in table `cusclass`.
class c_cusclass : public table_access<m_cusclass> {
public:
    c_cusclass();

    /// No controller calls it; its statement ends in a stray quote, so it throws DataError.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] bool addrec(const QString& cname) const;
    [[nodiscard]] bool updaterec(const QString& cname, qint16 ccid) const;

    [[nodiscard]] bool add(const m_cusclass& one) const { return addrec(one.cname); }
    [[nodiscard]] bool update(const m_cusclass& one) const {
        return updaterec(one.cname, one.ccid);
    }
};
