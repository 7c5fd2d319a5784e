// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/frame_joiner.h"

#include <utility>

namespace gateway {

frame_joiner::frame_joiner(clock& time) : pause_(time.make_alarm([this] { finish(); })) {}

void frame_joiner::add(const QByteArray& bytes, qint64 segment) {
    count_ += bytes.size();
    if (count_ <= max_frame_bytes) {
        collected_ += bytes;
    }
    if (count_ > max_bytes) {
        discard();
        emit overflowed();
    } else if (count_ % 2 != 0 || count_ >= segment || count_ > max_frame_bytes) {
        pause_->set(pause);
    } else {
        finish();
    }
}

void frame_joiner::finish() {
    const qsizetype count = count_;
    const QByteArray frame = collected_;
    if (!discard()) {
        return;
    }
    if (count > max_frame_bytes) {
        emit frame_refused();
    } else {
        emit frame_read(frame);
    }
}

bool frame_joiner::discard() {
    pause_->stop();
    collected_.clear();
    return std::exchange(count_, 0) > 0;
}

} // namespace gateway
