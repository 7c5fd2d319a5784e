// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/outbox.h"

#include <utility>

namespace gateway {

outbox::outbox(clock& time, std::function<void(verdict)> write_answer,
               std::function<void()> write_received)
    : clock_(time),
      write_answer_(std::move(write_answer)),
      write_received_(std::move(write_received)),
      due_(time.make_alarm([this] { write_due(); })),
      last_at_(time.steady() - long_pause.count()) {}

void outbox::answer(verdict result) {
    answer_ = result;
    write_due();
}

bool outbox::withdraw_answer() {
    return std::exchange(answer_, std::nullopt).has_value();
}

void outbox::bring() {
    received_ = true;
    write_due();
}

void outbox::heard() {
    // A frame that was under way when a received message went out says nothing of that.
    if (received_ && !answer_ && answer_is_last_) {
        const bool at_once = answered_at_ && clock_.steady() - *answered_at_ <= short_pause.count();
        write_received_now(at_once ? short_pause : long_pause);
    }
}

void outbox::hurry() {
    if (answer_) {
        write_answer_now();
    }
}

void outbox::write_due() {
    const qint64 now = clock_.steady();
    if (answer_ && now >= answer_from_) {
        write_answer_now();
    }
    const qint64 received_from = last_at_ + long_pause.count();
    if (received_ && !answer_ && now >= received_from) {
        write_received_now(long_pause);
    }
    if (answer_ || received_) {
        due_->set(std::chrono::milliseconds(
            (answer_ ? answer_from_ : last_at_ + long_pause.count()) - now));
    }
}

void outbox::write_answer_now() {
    last_at_ = clock_.steady();
    answered_at_ = last_at_;
    answer_is_last_ = true;
    write_answer_(*std::exchange(answer_, std::nullopt));
}

void outbox::write_received_now(std::chrono::milliseconds pause) {
    received_ = false;
    answer_is_last_ = false;
    last_at_ = clock_.steady();
    answer_from_ = last_at_ + pause.count();
    write_received_();
}

} // namespace gateway
