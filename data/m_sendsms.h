// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

/// An outgoing message. A key of 0 is not stored yet.
struct m_sendsms {
    qint16 smsid = 0;
    QString mobile;
    qint16 cid = 0;
    QString sms;
    bool sendisok = false; ///< the gateway has accepted it
    QDateTime rtime;       ///< when it was written
    QDateTime stime;       ///< not sent before this moment
    QString cname;         ///< the customer's name, from the view
    bool smsfrom = false;  ///< it comes from a group send
    bool imsend = false;   ///< written to be sent at once
};
