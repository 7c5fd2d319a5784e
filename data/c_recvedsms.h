// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_recvedsms.h"
#include "data/table_access.h"

/// Received messages: table `recvedsms`, read through view `vwrecvedsms`.
class c_recvedsms : public table_access<m_recvedsms> {
public:
    c_recvedsms();

    /// Opens the customers, not received messages.
    void searchsms(Recordset& rs) const;
    /// Stores the message as unread, whatever `readed` says.
    [[nodiscard]] bool addrec(const QString& mobile, const QString& sms, const QDateTime& rtime,
                              bool readed) const;
    /// Marks the message read.
    [[nodiscard]] bool updaterec(qint16 smsrid) const;

    [[nodiscard]] bool add(const m_recvedsms& received) const {
        return addrec(received.mobile, received.sms, received.rtime, received.readed);
    }
    [[nodiscard]] bool update(const m_recvedsms& received) const {
        return updaterec(received.smsrid);
    }
};
