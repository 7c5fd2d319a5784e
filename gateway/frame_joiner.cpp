// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/frame_joiner.h"

#include <utility>

namespace gateway {

frame_joiner::frame_joiner(std::chrono::milliseconds pause) {
    pause_.setTimerType(Qt::PreciseTimer);
    pause_.setSingleShot(true);
    pause_.setInterval(pause);
    connect(&pause_, &QTimer::timeout, this, &frame_joiner::finish);
}

void frame_joiner::add(const QByteArray& bytes) {
    collected_ += bytes;
    if (collected_.size() > max_bytes) {
        pause_.stop();
        collected_.clear();
        emit overflowed();
    } else if (collected_.size() % 2 != 0 || collected_.size() > max_certain_bytes) {
        pause_.start();
    } else {
        finish();
    }
}

void frame_joiner::finish() {
    pause_.stop();
    if (!collected_.isEmpty()) {
        emit frame_read(std::exchange(collected_, {}));
    }
}

} // namespace gateway
