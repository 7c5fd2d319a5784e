// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

/// A group send: one text for every customer, or for every customer of a class. A key of 0 is not
/// stored yet.
struct m_gsendsms {
    qint16 gsid = 0;
    qint16 cid = 0;      ///< the class addressed, unless `isall`
    QDateTime stime;     ///< the send time of every message made from it
    bool imsend = false; ///< written to be sent at once
    QDateTime rtime;     ///< when it was written
    QString cname;       ///< the class's name, from the view
    qint16 isall = 0;    ///< other than 0: every customer
    QString sms;         ///< not read back
};
