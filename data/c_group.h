// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_group.h"
#include "data/record_access.h"

/// Memberships of customers in classes: table `cgroup`, read through view `vwgroup`.
class c_group : public record_access {
public:
    /// Rows come ordered by class number.
    void openrs(Recordset& rs) const;
    /// Opens all memberships, whatever the text.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] std::optional<m_group> getrec(qint16 gid) const;
    [[nodiscard]] bool addrec(qint16 cid, qint16 ccid) const;
    [[nodiscard]] bool updaterec(qint16 gid, qint16 cid, qint16 ccid) const;
    [[nodiscard]] bool deleterec(qint16 gid) const;
};
