// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/frame_joiner.h"
#include "gateway/outbox.h"
#include "gateway/wire.h"

#include <QObject>
#include <QTcpSocket>

#include <optional>

namespace gateway {

/// The connection of one client: frames in, verdicts and received messages out. A client that
/// floods the gateway or never reads its answers is disconnected.
class client_link : public QObject {
    Q_OBJECT

public:
    /// Frames a client may have without an outcome; a well-behaved client has one.
    static constexpr int max_unsettled = 1'000;
    /// Bytes of answers a client may leave unread, on top of the system's own buffers.
    static constexpr qint64 max_unread_bytes = 1'048'576;

    /// Serves the connected socket and becomes its parent.
    explicit client_link(QTcpSocket* socket, QObject* parent = nullptr);

    /// Settles a frame that frame_read brought: tells the verdict, or nothing if there is none.
    void settle(std::optional<verdict> result);

    /// Queues a received message; message_sent follows when it is written.
    void send(const received_message& message);

signals:
    /// A frame came; settle() is owed for it, once.
    void frame_read(const QByteArray& frame);
    /// The received message was written.
    void message_sent(const gateway::received_message& message);
    /// The connection is over; the reason is empty when the client ended it.
    void closed(const QString& reason);

private:
    void take_frame(const QByteArray& frame);
    void write(const outbox::frame& next);
    void finish();
    void drop(const QString& reason);

    QTcpSocket* socket_;
    frame_joiner joiner_;
    outbox outbox_;
    int unsettled_ = 0;
    QString drop_reason_;
};

} // namespace gateway
