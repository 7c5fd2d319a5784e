// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/outbox.h"

#include <utility>

namespace gateway {

outbox::outbox(std::chrono::milliseconds gap) {
    gap_.setTimerType(Qt::PreciseTimer);
    gap_.setSingleShot(true);
    gap_.setInterval(gap);
    connect(&gap_, &QTimer::timeout, this, &outbox::end_gap);
}

void outbox::push(const frame& next) {
    queue_.push_back(next);
    send_due();
}

void outbox::end_gap() {
    gap_.stop();
    send_due();
}

bool outbox::may_send(const frame& next) const {
    return !gap_.isActive() || (last_was_verdict_ && std::holds_alternative<verdict>(next));
}

void outbox::send_due() {
    while (!queue_.empty() && may_send(queue_.front())) {
        const frame next = std::move(queue_.front());
        queue_.pop_front();
        last_was_verdict_ = std::holds_alternative<verdict>(next);
        gap_.start();
        emit due(next);
    }
}

} // namespace gateway
