// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace gateway {

/// What Kannel's status.xml tells of its links to networks.
struct kannel_status {
    QString fault; ///< why nothing could be read; else empty
    int links = 0;
    int online = 0;
    qint64 stored = 0; ///< messages that Kannel keeps on its disk
};

[[nodiscard]] kannel_status read_kannel_status(int http_status, const QByteArray& body);

/// The same in one line.
[[nodiscard]] QString tell(const kannel_status& status);

} // namespace gateway
