// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A customer class. A key of 0 is not stored yet.
struct m_cusclass {
    QString cname;
    qint16 ccid = 0;
};
