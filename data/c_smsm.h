// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_smsmodel.h"
#include "data/record_access.h"

/// Phrase templates in table `smsmodels`.
class c_smsm : public record_access {
public:
    void openrs(Recordset& rs) const;
    /// No controller calls it; its table does not exist, so it throws DataError.
    void searchsms(const QString& text, Recordset& rs) const;
    [[nodiscard]] std::optional<m_smsmodel> getrec(qint16 mid) const;
    [[nodiscard]] bool addrec(const QString& text) const;
    [[nodiscard]] bool updaterec(const QString& text, qint16 mid) const;
    [[nodiscard]] bool deleterec(qint16 mid) const;
};
