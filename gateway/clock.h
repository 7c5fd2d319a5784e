// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>

namespace gateway {

/// Rings once, some time after it was set. Setting it again puts it off; it is silent once it goes.
class alarm {
public:
    virtual ~alarm() = default;
    virtual void set(std::chrono::milliseconds after) = 0;
    virtual void stop() = 0;
    [[nodiscard]] virtual bool is_set() const = 0;
};

/// What time it is, and what is to happen later. Tests hand in one that they move by hand.
class clock {
public:
    virtual ~clock() = default;

    /// Milliseconds since 1970, as people's clocks show; may jump.
    [[nodiscard]] virtual qint64 now() const = 0;
    /// Milliseconds that only ever grow, also while the machine sleeps.
    [[nodiscard]] virtual qint64 steady() const = 0;
    /// How many of them the machine has slept.
    [[nodiscard]] virtual qint64 slept() const = 0;
    /// An alarm that rings from the event loop; the clock outlives it.
    [[nodiscard]] virtual std::unique_ptr<alarm> make_alarm(std::function<void()> ring) = 0;
};

/// The machine's own clock.
class system_clock final : public clock {
public:
    [[nodiscard]] qint64 now() const override;
    [[nodiscard]] qint64 steady() const override;
    [[nodiscard]] qint64 slept() const override;
    [[nodiscard]] std::unique_ptr<alarm> make_alarm(std::function<void()> ring) override;
};

} // namespace gateway
