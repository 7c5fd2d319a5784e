// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/interval_timer.h"

IntervalTimer::IntervalTimer(QObject* parent) : QObject(parent) {
    connect(&timer_, &QTimer::timeout, this, &IntervalTimer::Timer);
}

void IntervalTimer::set_Interval(int milliseconds) {
    interval_ = milliseconds;
    restart();
}

void IntervalTimer::set_Enabled(bool enabled) {
    enabled_ = enabled;
    restart();
}

void IntervalTimer::restart() {
    if (enabled_ && interval_ > 0) {
        timer_.start(interval_);
    } else {
        timer_.stop();
    }
}
