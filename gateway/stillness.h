// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"

namespace gateway {

/// Notices that this process stood still: the machine slept, or it was stopped or swapped out. Of
/// the latter a beat tells; it runs only while clients are busy, so that an idle gateway never
/// wakes.
class stillness {
public:
    /// Standing still for longer is noticed; a client gives a message up after twice this time, so
    /// no two of its messages can have come within it.
    static constexpr std::chrono::milliseconds bound{5'000};

    /// `stood_still` is called when it did, before anything else is read.
    stillness(clock& time, std::function<void()> stood_still);

    /// A client sent something: the beat goes on for a while.
    void busy();
    /// To be called before anything is read.
    void check();

private:
    void beat();
    [[nodiscard]] bool stood_still() const;
    void go_on();

    clock& clock_;
    std::function<void()> stood_still_;
    std::unique_ptr<alarm> beat_;
    qint64 beaten_at_ = 0;
    qint64 busy_until_ = 0;
    qint64 slept_;
};

} // namespace gateway
