// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_cusclass.h"
#include "data/record_access.h"

/// Customer classes in table `cusclass`.
class c_cusclass : public record_access {
public:
    void openrs(Recordset& rs) const;
    /// No controller calls it; its statement ends in a stray quote, so it throws DataError.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] std::optional<m_cusclass> getrec(qint16 ccid) const;
    [[nodiscard]] bool addrec(const QString& cname) const;
    [[nodiscard]] bool updaterec(const QString& cname, qint16 ccid) const;
    [[nodiscard]] bool deleterec(qint16 ccid) const;
};
