// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_smsmodel.h"
#include "data/table_access.h"

/// Phrase templates in table `smsmodels`.
class c_smsm : public table_access<m_smsmodel> {
public:
    c_smsm();

    /// No controller calls it; its table does not exist, so it throws DataError.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] bool addrec(const QString& text) const;
    [[nodiscard]] bool updaterec(const QString& text, qint16 mid) const;

    [[nodiscard]] bool add(const m_smsmodel& phrase) const { return addrec(phrase.text); }
    [[nodiscard]] bool update(const m_smsmodel& phrase) const {
        return updaterec(phrase.text, phrase.mid);
    }
};
