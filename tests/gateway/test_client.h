// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/wire.h"

#include <QHostAddress>
#include <QTcpSocket>

/// A client of a gateway on this machine that collects all it is sent.
class test_client : public QTcpSocket {
public:
    explicit test_client(quint16 port) { connectToHost(QHostAddress::LocalHost, port); }

    void send(const QString& frame) { write(gateway::encode_text(frame)); }

    QString answers() { return gateway::decode_text(bytes_ += readAll()); }

private:
    QByteArray bytes_;
};
