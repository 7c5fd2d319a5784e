// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/client_link.h"
#include "gateway/instant_backend.h"
#include "gateway/journal.h"

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QTcpServer>

#include <deque>

namespace gateway {

/// Serves the clients: their messages go to the network and come back as verdicts; a message from
/// the network goes to the client that connected first, or waits until there is one.
class server : public QObject {
    Q_OBJECT

public:
    /// Received messages that may wait for a client; further ones are lost.
    static constexpr std::size_t max_waiting = 1'000;
    /// Clients served at once; leaves room under the usual limit of 1,024 open files.
    static constexpr qsizetype max_clients = 900;

    /// A server between clients and the network. Both the network and the journal outlive it.
    server(instant_backend& network, journal& log);

    /// Listens; port 0 takes any free one. Gives the reason if it cannot, else nothing.
    [[nodiscard]] QString listen(const QHostAddress& address, quint16 port);

    /// The port it listens on.
    [[nodiscard]] quint16 port() const;

private:
    void accept_clients();
    void add_client(QTcpSocket* socket);
    void remove_client(client_link* link, const QString& reason);
    void submit(client_link* link, const QByteArray& frame);
    void receive(const received_message& message);
    void confirm_delivery(const received_message& message);
    void deliver_next();

    instant_backend& network_;
    journal& journal_;
    QTcpServer listener_;
    QList<client_link*> links_;
    std::deque<received_message> waiting_;
    bool delivering_ = false;
    bool losing_ = false;
};

} // namespace gateway
