// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTcpSocket>

#include <stdexcept>

/// A TCP client socket that never blocks. Its ten states are numbered as the engine reads them.
class Winsock : public QObject {
    Q_OBJECT

public:
    enum class StateEnum {
        closed = 0,
        open = 1,
        listening = 2,
        connection_pending = 3,
        resolving_host = 4,
        host_resolved = 5,
        connecting = 6,
        connected = 7,
        closing = 8, ///< the peer closed or reset the connection
        error = 9,   ///< refused, unreachable or timed out
    };

    /// An operation that the present state or its arguments do not allow.
    class Error : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };

    QString RemoteHost;
    int RemotePort = 0;

    explicit Winsock(QObject* parent = nullptr);

    [[nodiscard]] StateEnum State() const noexcept { return state_; }
    /// Starts connecting to RemoteHost and RemotePort. Throws Error unless the socket is closed,
    /// the host is named and the port lies between 1 and 65535; the state stays then.
    void Connect();
    /// Closes at once and drops what was not sent or read.
    void Close();
    /// Hands the bytes to the system in one write. Throws Error unless connected.
    void SendData(const QByteArray& bytes);
    /// Everything that has arrived and was not taken yet; of a flood, its next megabyte, and
    /// DataArrival follows for more.
    [[nodiscard]] QByteArray GetData();

signals:
    void DataArrival();

private:
    void receive();
    void follow(QAbstractSocket::SocketState state);
    void fail(QAbstractSocket::SocketError error);

    StateEnum state_ = StateEnum::closed;
    QTcpSocket socket_;
    QByteArray arrived_;
};
