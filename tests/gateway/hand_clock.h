// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"

#include <QSet>

#include <algorithm>

/// A clock that stands until it is moved; alarms ring while it moves, at their times.
class hand_clock final : public gateway::clock {
public:
    [[nodiscard]] qint64 now() const override { return now_; }
    [[nodiscard]] qint64 steady() const override { return now_; }
    [[nodiscard]] qint64 slept() const override { return slept_; }
    [[nodiscard]] std::unique_ptr<gateway::alarm> make_alarm(std::function<void()> ring) override {
        return std::make_unique<hand_alarm>(*this, std::move(ring));
    }

    void advance(std::chrono::milliseconds time) {
        const qint64 end = now_ + time.count();
        for (hand_alarm* next = first(end); next != nullptr; next = first(end)) {
            now_ = std::max(now_, *next->rings_at);
            next->rings_at.reset();
            next->ring();
        }
        now_ = end;
    }
    /// Time passes, but nothing rings: the process is stopped.
    void stand_still(std::chrono::milliseconds time) { now_ += time.count(); }
    /// The same, and the machine sleeps.
    void sleep(std::chrono::milliseconds time) {
        now_ += time.count();
        slept_ += time.count();
    }

private:
    struct hand_alarm final : gateway::alarm {
        hand_alarm(hand_clock& by, std::function<void()> rings)
            : clock(by), ring(std::move(rings)) {
            clock.alarms_.insert(this);
        }
        ~hand_alarm() override { clock.alarms_.remove(this); }
        Q_DISABLE_COPY_MOVE(hand_alarm)
        void set(std::chrono::milliseconds after) override {
            rings_at = clock.now_ + std::max<qint64>(0, after.count());
        }
        void stop() override { rings_at.reset(); }
        [[nodiscard]] bool is_set() const override { return rings_at.has_value(); }

        hand_clock& clock;
        std::function<void()> ring;
        std::optional<qint64> rings_at;
    };

    hand_alarm* first(qint64 end) {
        hand_alarm* found = nullptr;
        for (hand_alarm* one : std::as_const(alarms_)) {
            if (one->rings_at && *one->rings_at <= end &&
                (found == nullptr || *one->rings_at < *found->rings_at)) {
                found = one;
            }
        }
        return found;
    }

    QSet<hand_alarm*> alarms_;
    qint64 now_ = 1'700'000'000'000;
    qint64 slept_ = 0;
};
