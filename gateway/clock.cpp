// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/clock.h"

#include "gateway/system_calls.h"

#include <QDateTime>
#include <QTimer>

namespace gateway {

namespace {

class timer_alarm final : public alarm {
public:
    explicit timer_alarm(std::function<void()> ring) {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout(&timer_, std::move(ring));
    }
    void set(std::chrono::milliseconds after) override { timer_.start(after); }
    void stop() override { timer_.stop(); }
    [[nodiscard]] bool is_set() const override { return timer_.isActive(); }

private:
    QTimer timer_;
};

} // namespace

qint64 system_clock::now() const {
    return QDateTime::currentMSecsSinceEpoch();
}

qint64 system_clock::steady() const {
    return milliseconds_since_boot();
}

qint64 system_clock::slept() const {
    return milliseconds_slept();
}

std::unique_ptr<alarm> system_clock::make_alarm(std::function<void()> ring) {
    return std::make_unique<timer_alarm>(std::move(ring));
}

} // namespace gateway
