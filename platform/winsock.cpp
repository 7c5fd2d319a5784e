// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/winsock.h"

#include <QNetworkProxy>

#include <utility>

namespace {

/// The most bytes of one arrival, far above any message. A flood is otherwise handled in pieces of
/// megabytes, and handling them takes some fifteen times their size.
constexpr qint64 most_at_once = 1'048'576;

} // namespace

Winsock::Winsock(QObject* parent) : QObject(parent) {
    socket_.setProxy(QNetworkProxy::NoProxy); // one is for web pages
    connect(&socket_, &QTcpSocket::stateChanged, this, &Winsock::follow);
    connect(&socket_, &QTcpSocket::errorOccurred, this, &Winsock::fail);
    connect(&socket_, &QTcpSocket::readyRead, this, &Winsock::receive);
}

void Winsock::Connect() {
    if (state_ != StateEnum::closed) {
        throw Error("the socket is not closed");
    }
    if (RemoteHost.isEmpty() || RemotePort < 1 || RemotePort > 65535) {
        throw Error("no host, or a port out of range");
    }
    // With a buffer every write would wake the event loop once more, to find it written already.
    socket_.connectToHost(RemoteHost, static_cast<quint16>(RemotePort),
                          QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void Winsock::Close() {
    socket_.abort();
    arrived_.clear();
    state_ = StateEnum::closed;
}

void Winsock::SendData(const QByteArray& bytes) {
    if (state_ != StateEnum::connected) {
        throw Error("the socket is not connected");
    }
    if (socket_.write(bytes) < 0) {
        fail(socket_.error());
    }
}

QByteArray Winsock::GetData() {
    return std::exchange(arrived_, {});
}

/// An end of the connection is only told to whoever reads, even when nothing is there.
void Winsock::receive() {
    const QByteArray bytes =
        socket_.read(qBound<qint64>(1, socket_.bytesAvailable(), most_at_once));
    if (socket_.state() == QAbstractSocket::UnconnectedState) {
        fail(socket_.error());
    }
    if (!bytes.isEmpty()) {
        arrived_ += bytes;
        emit DataArrival();
    }
}

void Winsock::follow(QAbstractSocket::SocketState state) {
    switch (state) {
    case QAbstractSocket::HostLookupState:
        state_ = StateEnum::resolving_host;
        break;
    case QAbstractSocket::ConnectingState:
        state_ = StateEnum::connecting;
        break;
    case QAbstractSocket::ConnectedState:
        state_ = StateEnum::connected;
        // Frames are small and each waits for an answer: the system must not hold them back.
        socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        break;
    default:
        break; // how a connection ended is told by fail()
    }
}

void Winsock::fail(QAbstractSocket::SocketError error) {
    state_ =
        error == QAbstractSocket::RemoteHostClosedError ? StateEnum::closing : StateEnum::error;
}
