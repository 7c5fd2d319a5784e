// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/wire.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <deque>
#include <variant>

namespace gateway {

/// The frames on their way to one client, in order. The client takes one arrival for one frame,
/// so a gap keeps a received message apart from its neighbours; a verdict after a verdict needs
/// none, because the client writes its next message only when it has the last verdict.
class outbox : public QObject {
    Q_OBJECT

public:
    /// What a client can be sent.
    using frame = std::variant<verdict, received_message>;

    /// Long enough for two frames to arrive apart on a busy machine.
    static constexpr std::chrono::milliseconds default_gap{30};

    /// An outbox that leaves at least `gap` around a received message.
    explicit outbox(std::chrono::milliseconds gap = default_gap);

    /// Queues a frame; emits due at once if nothing keeps it back.
    void push(const frame& next);

    /// Ends the gap after the last frame and emits what was kept back by it.
    void end_gap();

signals:
    /// The frame is to be written now.
    void due(const gateway::outbox::frame& next);

private:
    [[nodiscard]] bool may_send(const frame& next) const;
    void send_due();

    std::deque<frame> queue_;
    QTimer gap_;
    bool last_was_verdict_ = false;
};

} // namespace gateway
