// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_link.h"

#include <utility>

using namespace std::chrono_literals;

namespace gateway {

namespace {

/// For the next request on a connection that is kept; longer than engines keep theirs.
constexpr std::chrono::milliseconds patience_between = 5min;
/// For the rest of a request, and for a client that does not read its answer.
constexpr std::chrono::milliseconds patience_within = 10s;
/// A client that was refused has said all when nothing came for so long, or said too much.
constexpr std::chrono::milliseconds quiet = 200ms;
constexpr qint64 max_drained = 16'777'216;
/// Answers that a client may leave unread before its next request waits.
constexpr qint64 max_unread = 262'144;

} // namespace

http_link::http_link(QTcpSocket* socket, QObject* parent) : QObject(parent), socket_(socket) {
    socket_->setParent(this);
    socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket_->setReadBufferSize(http_server::max_request);
    connect(socket_, &QTcpSocket::readyRead, this, &http_link::read);
    connect(socket_, &QTcpSocket::bytesWritten, this, &http_link::read);
    connect(socket_, &QTcpSocket::disconnected, this, &http_link::closed);
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, &http_link::lose_patience);
    patience_.start(patience_within);
}

http_link::~http_link() {
    socket_->disconnect(this); // its end is no news any more
}

void http_link::read() {
    if (ending_) {
        drain();
        return;
    }
    if (asking_ || socket_->bytesToWrite() >= max_unread) {
        return;
    }
    const QByteArray news = socket_->read(http_server::max_request - buffer_.size());
    buffer_ += news;
    if (!news.isEmpty()) {
        emit heard();
    }
    watch(serve_next());
}

void http_link::watch(bool served) {
    const bool between = buffer_.isEmpty() && socket_->bytesToWrite() == 0;
    if (!ending_ && (served || between != between_)) {
        patience_.start(between ? patience_between : patience_within);
    }
    between_ = between;
}

bool http_link::serve_next() {
    const http_request_reading reading = read_request(buffer_, http_server::max_request);
    switch (reading.progress) {
    case http_progress::incomplete:
        return false;
    case http_progress::broken:
        socket_->write(response_bytes({reading.refusal}, false, false));
        // The rest of what it sends is taken off first: unread bytes turn the end into a reset,
        // which takes the answer away from the client.
        ending_ = true;
        drain();
        return true;
    case http_progress::whole:
        break;
    }
    buffer_.remove(0, reading.size);
    request_ = reading.request;
    asking_ = true;
    emit asked(request_);
    return true;
}

void http_link::answer(const http_response& response) {
    asking_ = false;
    if (socket_->state() != QAbstractSocket::ConnectedState) {
        return;
    }
    socket_->write(response_bytes(response, request_.head_only, request_.stays_open));
    if (!request_.stays_open) {
        ending_ = true;
        finish();
    } else {
        read(); // what came behind it
    }
}

void http_link::drain() {
    buffer_.clear();
    drained_ += socket_->readAll().size();
    if (drained_ > max_drained) {
        socket_->abort();
    } else if (!finishing_) {
        patience_.start(quiet);
    }
}

void http_link::finish() {
    finishing_ = true;
    patience_.start(patience_within);
    socket_->disconnectFromHost();
}

void http_link::lose_patience() {
    if (ending_ && !finishing_) {
        finish();
    } else {
        socket_->abort();
    }
}

} // namespace gateway
