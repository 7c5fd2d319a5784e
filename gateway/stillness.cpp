// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/stillness.h"

#include <utility>

namespace gateway {

namespace {

constexpr std::chrono::milliseconds interval{1'000};
/// Longer than the interval between two polls of a client that has something to send.
constexpr std::chrono::milliseconds lasting{150'000};

} // namespace

stillness::stillness(clock& time, std::function<void()> stood_still)
    : clock_(time),
      stood_still_(std::move(stood_still)),
      beat_(time.make_alarm([this] { beat(); })),
      slept_(time.slept()) {}

void stillness::busy() {
    busy_until_ = clock_.steady() + lasting.count();
    if (!beat_->is_set()) {
        go_on();
        beat_->set(interval);
    }
}

bool stillness::stood_still() const {
    const bool missed_beats = beat_->is_set() && clock_.steady() - beaten_at_ > bound.count();
    return missed_beats || clock_.slept() - slept_ > bound.count();
}

void stillness::go_on() {
    beaten_at_ = clock_.steady();
    slept_ = clock_.slept();
}

void stillness::check() {
    if (stood_still()) {
        go_on();
        stood_still_();
    }
}

void stillness::beat() {
    beat_->set(interval); // set again, or nobody could tell that it was late
    check();
    go_on();
    if (clock_.steady() > busy_until_) {
        beat_->stop();
    }
}

} // namespace gateway
