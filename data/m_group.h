// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A customer's membership in a class; the names and the mobile come from the view.
struct m_group {
    qint16 gid = 0;
    qint16 cid = 0;
    qint16 ccid = 0;
    QString cname;   ///< the class
    QString cusname; ///< the customer
    QString mobile;
};
