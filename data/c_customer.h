// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_customer.h"
#include "data/table_access.h"

/// Customers in table `customer`.
class c_customer : public table_access<m_customer> {
public:
    c_customer();

    /// Opens all customers, whatever the text.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] bool addrec(const QString& birth, const QString& cname, const QString& sex,
                              const QString& mobile, const QString& phone,
                              const QString& memo) const;
    [[nodiscard]] bool updaterec(qint16 cid, const QString& birth, const QString& cname,
                                 const QString& sex, const QString& mobile, const QString& phone,
                                 const QString& memo) const;

    [[nodiscard]] bool add(const m_customer& one) const {
        return addrec(one.birth, one.cname, one.sex, one.mobile, one.phone, one.memo);
    }
    [[nodiscard]] bool update(const m_customer& one) const {
        return updaterec(one.cid, one.birth, one.cname, one.sex, one.mobile, one.phone, one.memo);
    }
};
