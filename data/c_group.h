// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_group.h"
#include "data/table_access.h"

/// Memberships of customers in classes: table `cgroup`, read through view `vwgroup`. All rows come
/// ordered by class number.
class c_group : public table_access<m_group> {
public:
    c_group();

    /// Opens all memberships, whatever the text.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] bool addrec(qint16 cid, qint16 ccid) const;
    [[nodiscard]] bool updaterec(qint16 gid, qint16 cid, qint16 ccid) const;

    [[nodiscard]] bool add(const m_group& member) const { return addrec(member.cid, member.ccid); }
    [[nodiscard]] bool update(const m_group& member) const {
        return updaterec(member.gid, member.cid, member.ccid);
    }
};
