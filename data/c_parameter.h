// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_parameter.h"
#include "data/record_access.h"

/// The gateway parameters: the one row of table `parameters`.
class c_parameter : public record_access {
public:
    [[nodiscard]] std::optional<m_parameter> getrec() const;
    /// Inserts a phrase template, not a parameters row.
    [[nodiscard]] bool addrec(const QString& text) const;
    /// Rewrites every row of the table.
    [[nodiscard]] bool updaterec(const QString& ip, qint16 port) const;

    [[nodiscard]] bool update(const m_parameter& one) const { return updaterec(one.ip, one.port); }
};
