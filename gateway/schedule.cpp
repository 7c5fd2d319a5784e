// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/schedule.h"

#include <algorithm>
#include <utility>

namespace gateway {

schedule::schedule(clock& time) : clock_(time), next_(time.make_alarm([this] { run_due(); })) {}

void schedule::after(std::chrono::milliseconds pause, std::function<void()> what) {
    waiting_.emplace(clock_.steady() + pause.count(), std::move(what));
    const qint64 first = waiting_.begin()->first;
    next_->set(std::chrono::milliseconds(std::max<qint64>(0, first - clock_.steady())));
}

void schedule::run_due() {
    const qint64 now = clock_.steady();
    while (!waiting_.empty() && waiting_.begin()->first <= now) {
        const auto due = waiting_.extract(waiting_.begin());
        due.mapped()();
    }
    if (!waiting_.empty()) {
        next_->set(std::chrono::milliseconds(
            std::max<qint64>(0, waiting_.begin()->first - clock_.steady())));
    }
}

} // namespace gateway
