// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/relay_rules.h"

#include <QList>

namespace gateway {

/// A message as the status tells of it. Times are milliseconds since 1970.
struct status_message {
    message_id id = 0;
    qint64 taken_at = 0;
    QString mobile;
    QString text;
    message_state state = message_state::queued;
    QString reason;
};

/// A received message that no client surely has yet.
struct held_message {
    qint64 at = 0;
    QString sender;
    QString text;
};

/// How the gateway stands: what the page, status.json and the metrics tell.
struct gateway_status {
    qint64 now = 0;
    QString engine;
    network_health network;
    QString store_fault; ///< why nothing below could be read; else empty
    int clients = 0;
    qint64 waiting = 0;
    qint64 sent_today = 0;
    qint64 failed_today = 0;
    qint64 unknown = 0;
    qint64 held = 0;
    QList<status_message> messages; ///< the last ones, the newest first
    QList<held_message> received;   ///< of those that are held, the oldest first
};

} // namespace gateway
