// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/fmtdatetime.h"
#include "data/m_sendsmses.h"
#include "data/table_access.h"

/// Outgoing messages: table `sendsms`, read through view `vwsendsms`.
class c_sendsms : public table_access<m_sendsms> {
public:
    c_sendsms();

    /// The clock that decides which messages are due.
    clock_source now = system_clock;

    /// Appends every message that is pending, due and not in the queue yet. Throws DataError; what
    /// was appended before the error stays.
    void searchsms(m_sendsmses& queue) const;
    [[nodiscard]] bool addrec(const QString& mobile, qint16 cid, const QString& sms, bool sendisok,
                              const QDateTime& rtime, const QDateTime& stime, bool smsfrom,
                              bool imsend) const;
    /// Leaves `sendisok`, `rtime`, `smsfrom` and `imsend` as they are.
    [[nodiscard]] bool updaterec(qint16 smsid, const QString& mobile, qint16 cid,
                                 const QString& sms, const QDateTime& stime) const;
    /// Marks the message sent.
    [[nodiscard]] bool sended(qint16 smsid) const;

    [[nodiscard]] bool add(const m_sendsms& message) const {
        return addrec(message.mobile, message.cid, message.sms, message.sendisok, message.rtime,
                      message.stime, message.smsfrom, message.imsend);
    }
    [[nodiscard]] bool update(const m_sendsms& message) const {
        return updaterec(message.smsid, message.mobile, message.cid, message.sms, message.stime);
    }
};
