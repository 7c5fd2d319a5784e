// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringConverter>
#include <QTcpServer>
#include <QTcpSocket>

#include <future>

#include <sys/socket.h>
#include <unistd.h>

/// A gateway of the test's own on this machine: keeps what arrives and says what it is told to.
class scripted_gateway {
public:
    QStringList frames; ///< what arrived, one entry an arrival
    int connections = 0;

    scripted_gateway() {
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            ++connections;
            link_ = server_.nextPendingConnection();
            QObject::connect(link_, &QTcpSocket::readyRead, link_, [this] {
                frames.append(QStringDecoder(QStringDecoder::Utf16LE)(link_->readAll()));
            });
        });
    }

    /// Opens the same port again after close(). The column for it holds no port above 32767.
    void listen() {
        while (!server_.listen(QHostAddress::LocalHost, port_) && port_ < 32767) {
            ++port_;
        }
    }
    void close() { server_.close(); }
    [[nodiscard]] quint16 port() const { return port_; }

    /// It is on its way when the call returns; no event is needed for it.
    void say(const QString& frame) {
        link_->write(QStringEncoder(QStringEncoder::Utf16LE)(frame));
        link_->flush();
    }
    /// Says the bytes over and over from a thread of its own, as fast as they are taken, `total` of
    /// them in all.
    [[nodiscard]] std::future<void> flood(const QByteArray& bytes, qint64 total) const {
        const int descriptor = ::dup(static_cast<int>(link_->socketDescriptor()));
        return std::async(std::launch::async, [=] {
            QTcpSocket link;
            link.setSocketDescriptor(descriptor);
            for (qint64 said = 0; said < total; said += bytes.size()) {
                link.write(bytes);
                if (!link.waitForBytesWritten()) {
                    break;
                }
            }
        });
    }
    void hang_up() { link_->disconnectFromHost(); }
    /// Ends the link as a machine does on which the gateway was killed.
    void reset() {
        const linger at_once{1, 0};
        ::setsockopt(static_cast<int>(link_->socketDescriptor()), SOL_SOCKET, SO_LINGER, &at_once,
                     sizeof at_once);
        link_->abort();
    }

private:
    QTcpServer server_;
    QTcpSocket* link_ = nullptr;
    quint16 port_ = static_cast<quint16>(20000 + QCoreApplication::applicationPid() % 12000);
};
