// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_customer.h"
#include "data/record_access.h"

/// Customers in table `customer`.
class c_customer : public record_access {
public:
    void openrs(Recordset& rs) const;
    /// Opens all customers, whatever the text.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] std::optional<m_customer> getrec(qint16 cid) const;
    [[nodiscard]] bool addrec(const QString& birth, const QString& cname, const QString& sex,
                              const QString& mobile, const QString& phone,
                              const QString& memo) const;
    [[nodiscard]] bool updaterec(qint16 cid, const QString& birth, const QString& cname,
                                 const QString& sex, const QString& mobile, const QString& phone,
                                 const QString& memo) const;
    [[nodiscard]] bool deleterec(qint16 cid) const;
};
