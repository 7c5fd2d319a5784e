// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/client_link.h"

#include "gateway/relay_rules.h"
#include "gateway/system_calls.h"
#include "gateway/texts.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// For what a client sent before it left: far more than it has under way.
constexpr int most_reads = 8;

/// Where the system cannot tell a link's segment: the least that every network carries.
constexpr qint64 least_segment = 536;

/// Where it cannot tell what the other end has: as long as a client may be busy.
constexpr qint64 surely_busy_no_longer_ms = 60'000;

} // namespace

client_link::client_link(QTcpSocket* socket, clock& time, QObject* parent)
    : QObject(parent),
      socket_(socket),
      clock_(time),
      client_(socket->peerAddress().toString()),
      joiner_(time),
      outbox_(
          time, [this](verdict result) { write_answer(result); }, [this] { write_received(); }),
      acknowledged_(time.make_alarm([this] { confirm_acknowledged(); })) {
    socket_->setParent(this);
    socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket_->setSocketOption(QAbstractSocket::KeepAliveOption, 1);
    // Enough for any message in one read; a flood beyond it stays in the system's buffers.
    socket_->setReadBufferSize(frame_joiner::max_bytes);
    connect(socket_, &QTcpSocket::readyRead, this, &client_link::read_arrival);
    connect(socket_, &QTcpSocket::disconnected, this, &client_link::finish);
    connect(&joiner_, &frame_joiner::frame_read, this, &client_link::take_frame);
    connect(&joiner_, &frame_joiner::frame_refused, this, &client_link::refuse);
    connect(&joiner_, &frame_joiner::overflowed, this,
            [this] { drop(texts::tr("too many bytes without a pause")); });
}

void client_link::read_arrival() {
    if (distrusting_) {
        return;
    }
    emit arriving();
    const QByteArray bytes = socket_->readAll();
    if (!bytes.isEmpty() && !ending_) {
        read_at_ = clock_.steady();
        joiner_.add(bytes, segment_size(socket_->socketDescriptor()).value_or(least_segment));
    }
}

void client_link::take_frame(const QByteArray& frame) {
    has_spoken_ = true;
    if (unread_ && unread_->answer_followed) { // it reads in order
        confirm_received();
    }
    outbox_.heard();
    emit frame_read(frame, read_at_);
}

void client_link::refuse() {
    outbox_.answer(verdict::failed);
}

void client_link::finish_if_left() {
    if (has_other_end_left(socket_->socketDescriptor())) {
        for (int i = 0; i < most_reads && socket_->waitForReadyRead(0); ++i) {
        }
    }
}

void client_link::distrust() {
    distrusting_ = true;
    socket_->waitForReadyRead(0);
    distrusting_ = false;
    const bool cut = joiner_.discard();
    if (!socket_->readAll().isEmpty() || cut) {
        refuse();
    }
}

void client_link::answer(const taking& result) {
    if (!result.answer) {
        return;
    }
    if (finished_ && result.id != 0) {
        emit answer_left_open(result.id);
        return;
    }
    if (result.id != 0) {
        answer_ = earlier_answer{.id = result.id};
    }
    outbox_.answer(*result.answer);
}

std::optional<earlier_answer> client_link::release_answer() {
    outbox_.withdraw_answer();
    return std::exchange(answer_, std::nullopt);
}

bool client_link::is_answer_under_way() const {
    return answer_ &&
           (!answer_->written || unacknowledged_bytes(socket_->socketDescriptor()).value_or(0) > 0);
}

bool client_link::can_bring() const {
    return !ending_ && !waiting_ && !unread_;
}

void client_link::bring(qint64 id, const received_message& message) {
    waiting_.emplace(id, encode(message));
    outbox_.bring();
}

void client_link::write_answer(verdict result) {
    if (socket_->state() != QAbstractSocket::ConnectedState || ending_) {
        return;
    }
    socket_->write(encode(result));
    socket_->flush();
    if (unread_) {
        unread_->answer_followed = true;
    }
    if (answer_) {
        answer_->written = true;
        answer_written_at_ = clock_.steady();
        watch_unread();
    }
}

void client_link::write_received() {
    const auto [id, frame] = *std::exchange(waiting_, std::nullopt);
    if (socket_->state() != QAbstractSocket::ConnectedState || ending_) {
        return;
    }
    socket_->write(frame);
    socket_->flush();
    unread_ = unread{.id = id, .written_at = clock_.steady()};
    watch_unread();
    emit written(id);
}

void client_link::confirm_received() {
    emit confirmed(std::exchange(unread_, std::nullopt)->id);
}

void client_link::confirm_acknowledged() {
    const qint64 now = clock_.steady();
    const auto missing = unacknowledged_bytes(socket_->socketDescriptor());
    const qint64 after = missing ? surely_read_after.count() : surely_busy_no_longer_ms;
    if (missing.value_or(0) == 0) {
        if (answer_ && answer_->written && now - answer_written_at_ >= after) {
            emit answer_confirmed(std::exchange(answer_, std::nullopt)->id);
        }
        if (unread_ && now - unread_->written_at >= after) {
            confirm_received();
        }
    }
    watch_unread();
}

void client_link::watch_unread() {
    if (((answer_ && answer_->written) || unread_) && !acknowledged_->is_set()) {
        acknowledged_->set(surely_read_after);
    }
}

void client_link::end() {
    outbox_.hurry();
    ending_ = true;
    socket_->flush();
    end_sending(socket_->socketDescriptor());
}

void client_link::drop(const QString& reason) {
    drop_reason_ = reason;
    socket_->abort();
}

void client_link::finish() {
    acknowledged_->stop();
    // Nothing more can come, so a frame still being collected is complete.
    joiner_.finish();
    finished_ = true;
    if (answer_) {
        emit answer_left_open(std::exchange(answer_, std::nullopt)->id);
    }
    emit closed(drop_reason_);
}

} // namespace gateway
