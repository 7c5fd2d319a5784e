// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_recvedsms.h"
#include "data/record_access.h"

/// Received messages: table `recvedsms`, read through view `vwrecvedsms`.
class c_recvedsms : public record_access {
public:
    void openrs(Recordset& rs) const;
    /// Opens the customers, not received messages; nothing calls it.
    void searchsms(Recordset& rs) const;
    [[nodiscard]] std::optional<m_recvedsms> getrec(qint16 smsrid) const;
    /// Stores the message as unread, whatever `readed` says.
    [[nodiscard]] bool addrec(const QString& mobile, const QString& sms, const QDateTime& rtime,
                              bool readed) const;
    /// Marks the message read.
    [[nodiscard]] bool updaterec(qint16 smsrid) const;
    [[nodiscard]] bool deleterec(qint16 smsrid) const;
};
