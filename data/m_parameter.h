// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The gateway's address and TCP port.
struct m_parameter {
    QString ip;
    qint16 port = 0;
};
