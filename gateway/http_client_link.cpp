// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_client_link.h"

#include "gateway/http_message.h"
#include "gateway/texts.h"

#include <QNetworkProxy>

#include <utility>

using namespace std::chrono_literals;

namespace gateway {

namespace {

/// How long a connection is kept without a request: well below the time after which servers end
/// theirs, so that no request meets that end on its way.
constexpr std::chrono::milliseconds kept_for = 15s;
/// The longest answer: the state of an engine with hundreds of links.
constexpr qsizetype max_answer = 1'048'576;

} // namespace

http_client_link::http_client_link(QUrl server, std::chrono::milliseconds timeout, QObject* parent)
    : QObject(parent), server_(std::move(server)), timeout_(timeout) {
    socket_.setProxy(QNetworkProxy::NoProxy);
    patience_.setSingleShot(true);
    connect(&socket_, &QTcpSocket::connected, this, &http_client_link::write);
    connect(&socket_, &QTcpSocket::readyRead, this, [this] { read(false); });
    // Queued, for a refused connection may be told before send() is over. That nothing was waiting
    // when is_open() looked is no error.
    const auto fall = [this](QAbstractSocket::SocketError error) {
        if (error != QAbstractSocket::SocketTimeoutError) {
            read(true);
        }
    };
    connect(&socket_, &QTcpSocket::errorOccurred, this, fall, Qt::QueuedConnection);
    connect(&patience_, &QTimer::timeout, this,
            [this] { fail(busy_ ? texts::tr("no answer in time") : QString()); });
}

http_client_link::~http_client_link() {
    socket_.disconnect(this);
}

void http_client_link::send(const QByteArray& request) {
    busy_ = true;
    was_written_ = false;
    buffer_.clear();
    request_ = request;
    patience_.start(timeout_);
    if (socket_.state() == QAbstractSocket::ConnectedState) {
        write();
    } else {
        socket_.connectToHost(server_.host(), static_cast<quint16>(server_.port(80)));
    }
}

bool http_client_link::is_open() {
    if (socket_.state() == QAbstractSocket::ConnectedState) {
        socket_.waitForReadyRead(0);
    }
    return socket_.state() == QAbstractSocket::ConnectedState;
}

void http_client_link::write() {
    socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    was_written_ = true;
    socket_.write(std::exchange(request_, {}));
}

void http_client_link::read(bool ended) {
    buffer_ += socket_.readAll();
    const http_answer_reading reading = read_answer(buffer_, ended);
    if (!busy_ || reading.progress == http_progress::broken || buffer_.size() > max_answer) {
        fail(ended ? socket_.errorString() : texts::tr("the answer is no HTTP"));
    } else if (reading.progress == http_progress::whole) {
        const http_answer answer{reading.status, reading.body, {}, was_written_};
        if (!reading.stays_open) {
            end(answer);
            return;
        }
        busy_ = false;
        patience_.start(kept_for);
        emit answered(answer);
    }
}

void http_client_link::fail(const QString& fault) {
    end({0, {}, fault, was_written_});
}

void http_client_link::end(const http_answer& answer) {
    patience_.stop();
    socket_.disconnect(this);
    socket_.abort();
    emit gone(answer);
}

} // namespace gateway
