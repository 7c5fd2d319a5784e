// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/server_probe.h"

#include "platform/data_error.h"

#include <QNetworkProxy>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace {

constexpr int usual_port = 1433; // of the servers that such strings name
constexpr int longest_wait_ms = 3000;

} // namespace

void probe_server(const QString& server) {
    const QString host = server.section(u',', 0, 0).trimmed();
    const QString port_text = server.section(u',', 1).trimmed();
    bool is_port = true;
    const ushort port = port_text.isEmpty() ? usual_port : port_text.toUShort(&is_port);
    QTcpSocket socket;
    if (host.isEmpty() || !is_port || port == 0) {
        throw DataError(DataError::Kind::cannot_open, server);
    }
    socket.setProxy(QNetworkProxy::NoProxy); // one is for web pages
    socket.connectToHost(host, port);
    if (!socket.waitForConnected(longest_wait_ms)) {
        throw DataError(DataError::Kind::cannot_open, socket.errorString());
    }
}
