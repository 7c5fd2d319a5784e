// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/frame_joiner.h"
#include "gateway/intake.h"
#include "gateway/outbox.h"
#include "gateway/wire.h"

#include <QObject>
#include <QTcpSocket>

#include <optional>

namespace gateway {

/// The connection of one client: frames in, answers and received messages out, and what is known
/// of whether the client has read them. A client that floods the gateway is disconnected.
class client_link : public QObject {
    Q_OBJECT

public:
    /// Serves the connected socket and becomes its parent.
    client_link(QTcpSocket* socket, clock& time, QObject* parent = nullptr);

    /// The client's address.
    [[nodiscard]] const QString& client() const { return client_; }
    [[nodiscard]] bool has_spoken() const { return has_spoken_; }

    /// The answer to the last frame, with the message that the frame brought.
    void answer(const taking& result);
    /// What is known of the answer before, which the link forgets.
    [[nodiscard]] std::optional<earlier_answer> release_answer();
    /// The answer is still on its way to the client's system.
    [[nodiscard]] bool is_answer_under_way() const;

    /// True when a received message may be given to bring(): one goes at a time, and the next when
    /// the client has surely read it.
    [[nodiscard]] bool can_bring() const;
    void bring(qint64 id, const received_message& message);

    /// Reads what a client sent that has left, and ends; nothing for one that is still there.
    void finish_if_left();
    /// Reads all that has come and refuses it with one answer, if there is anything.
    void distrust();
    /// Writes the answers that wait and ends our side; what still comes is read and thrown away.
    void end();
    /// Disconnects at once.
    void drop(const QString& reason);

signals:
    /// Bytes came and are about to be read.
    void arriving();
    /// A frame came, which was read at this time (steady); answer() is owed for it.
    void frame_read(const QByteArray& frame, qint64 read_at);
    /// The client has surely read the answer that brought it this message's verdict.
    void answer_confirmed(gateway::message_id id);
    /// The link ended before.
    void answer_left_open(gateway::message_id id);
    /// A received message was written, or surely read.
    void written(qint64 id);
    void confirmed(qint64 id);
    /// The connection is over; the reason is empty when the client ended it.
    void closed(const QString& reason);

private:
    struct unread {
        qint64 id = 0;
        qint64 written_at = 0;
        bool answer_followed = false;
    };

    void read_arrival();
    void take_frame(const QByteArray& frame);
    void refuse();
    void write_answer(verdict result);
    void write_received();
    void confirm_received();
    void confirm_acknowledged();
    void watch_unread();
    void finish();

    QTcpSocket* socket_;
    clock& clock_;
    QString client_;
    frame_joiner joiner_;
    outbox outbox_;
    std::optional<earlier_answer> answer_;
    qint64 answer_written_at_ = 0;
    std::optional<unread> unread_; ///< the received message that the client has not surely read
    std::optional<std::pair<qint64, QByteArray>> waiting_;
    std::unique_ptr<alarm> acknowledged_;
    qint64 read_at_ = 0;
    bool has_spoken_ = false;
    bool ending_ = false;
    bool distrusting_ = false;
    bool finished_ = false;
    QString drop_reason_;
};

} // namespace gateway
