// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/client_link.h"

using namespace Qt::StringLiterals;

namespace gateway {

client_link::client_link(QTcpSocket* socket, QObject* parent) : QObject(parent), socket_(socket) {
    socket_->setParent(this);
    socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    // Enough for any message in one read; a flood beyond it stays in the system's buffers.
    socket_->setReadBufferSize(frame_joiner::max_bytes);
    connect(socket_, &QTcpSocket::readyRead, this, [this] { joiner_.add(socket_->readAll()); });
    connect(socket_, &QTcpSocket::disconnected, this, &client_link::finish);
    connect(&joiner_, &frame_joiner::frame_read, this, &client_link::take_frame);
    connect(&joiner_, &frame_joiner::overflowed, this,
            [this] { drop(u"too many bytes without a pause"_s); });
    connect(&outbox_, &outbox::due, this, &client_link::write);
}

void client_link::settle(std::optional<verdict> result) {
    --unsettled_;
    if (result) {
        outbox_.push(*result);
    }
}

void client_link::send(const received_message& message) {
    outbox_.push(message);
}

void client_link::take_frame(const QByteArray& frame) {
    if (unsettled_ >= max_unsettled) {
        drop(u"too many messages without a verdict"_s);
        return;
    }
    ++unsettled_;
    emit frame_read(frame);
}

void client_link::write(const outbox::frame& next) {
    if (socket_->state() != QAbstractSocket::ConnectedState) {
        return;
    }
    socket_->write(std::visit([](const auto& content) { return encode(content); }, next));
    socket_->flush();
    if (const auto* message = std::get_if<received_message>(&next)) {
        emit message_sent(*message);
    }
    if (socket_->bytesToWrite() > max_unread_bytes) {
        drop(u"too many answers unread"_s);
    }
}

void client_link::finish() {
    // Nothing more can come, so a frame still being collected is complete.
    joiner_.finish();
    emit closed(drop_reason_);
}

void client_link::drop(const QString& reason) {
    drop_reason_ = reason;
    socket_->abort();
}

} // namespace gateway
