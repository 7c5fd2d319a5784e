// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"
#include "gateway/wire.h"

#include <optional>

namespace gateway {

/// The frames on their way to one client. The client takes one arrival for one frame, and its
/// window may be busy, so whatever is written before it has read the last frame may be lost. That
/// it has read everything is known at one moment: when its next message comes, which it sends when
/// it has read the last answer. A received message goes out at such a moment, or after a pause; an
/// answer that follows it waits.
class outbox {
public:
    /// The pause around a received message; the client may be busy for that long.
    static constexpr std::chrono::milliseconds long_pause{1'000};
    /// The same while the client answers within it.
    static constexpr std::chrono::milliseconds short_pause{100};

    /// What writes an answer, and what writes the received message that waits.
    outbox(clock& time, std::function<void(verdict)> write_answer,
           std::function<void()> write_received);

    /// Writes the answer now or after the pause behind a received message.
    void answer(verdict result);
    /// Takes an answer back that is not written yet; true if there was one.
    bool withdraw_answer();
    /// Lets one received message be written, when it may.
    void bring();
    [[nodiscard]] bool has_received() const { return received_; }
    /// The client has sent a frame.
    void heard();
    /// Writes what waits for its pause, because the end comes.
    void hurry();

private:
    void write_due();
    void write_answer_now();
    void write_received_now(std::chrono::milliseconds pause);

    clock& clock_;
    std::function<void(verdict)> write_answer_;
    std::function<void()> write_received_;
    std::unique_ptr<alarm> due_;
    std::optional<verdict> answer_;
    bool received_ = false;
    qint64 last_at_;
    std::optional<qint64> answered_at_;
    bool answer_is_last_ = true; ///< of all that was written
    qint64 answer_from_ = 0;
};

} // namespace gateway
