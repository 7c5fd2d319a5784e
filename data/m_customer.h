// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A customer; birthday and sex are free text. A key of 0 is not stored yet.
struct m_customer {
    qint16 cid = 0;
    QString birth;
    QString cname;
    QString sex;
    QString mobile;
    QString phone;
    QString memo;
};
