// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

/// A message received from a handset; the customer comes from the view.
struct m_recvedsms {
    qint16 smsrid = 0;
    QString mobile;
    QString sms;
    QDateTime rtime; ///< when the gateway received it
    bool readed = false;
    QString cname;
    qint16 cid = 0;
};
