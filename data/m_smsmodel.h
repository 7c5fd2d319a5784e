// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A phrase template: a stock message text. A key of 0 is not stored yet.
struct m_smsmodel {
    QString text;
    qint16 mid = 0;
};
