// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/server.h"

#include "gateway/console.h"

#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

namespace gateway {

server::server(instant_backend& network, journal& log) : network_(network), journal_(log) {
    connect(&listener_, &QTcpServer::newConnection, this, &server::accept_clients);
    network_.set_receive_handler([this](const auto& message) { receive(message); });
}

QString server::listen(const QHostAddress& address, quint16 port) {
    return listener_.listen(address, port) ? QString() : listener_.errorString();
}

quint16 server::port() const {
    return listener_.serverPort();
}

void server::accept_clients() {
    while (QTcpSocket* socket = listener_.nextPendingConnection()) {
        if (links_.size() < max_clients) {
            add_client(socket);
        } else {
            journal_.record_disconnection(u"too many clients"_s);
            socket->abort();
            socket->deleteLater();
        }
    }
}

void server::add_client(QTcpSocket* socket) {
    auto* link = new client_link(socket, this);
    connect(link, &client_link::frame_read, this,
            [this, link](const QByteArray& frame) { submit(link, frame); });
    connect(link, &client_link::message_sent, this, &server::confirm_delivery);
    connect(link, &client_link::closed, this,
            [this, link](const QString& reason) { remove_client(link, reason); });
    links_.append(link);
    deliver_next();
}

void server::remove_client(client_link* link, const QString& reason) {
    if (!reason.isEmpty()) {
        journal_.record_disconnection(reason);
    }
    if (link == links_.first()) {
        delivering_ = false;
    }
    links_.removeOne(link);
    link->deleteLater();
    deliver_next();
}

void server::submit(client_link* link, const QByteArray& frame) {
    const auto message = parse_submission(frame);
    if (!message) {
        journal_.record_unreadable(frame);
        link->settle(verdict::failed);
        return;
    }
    // The client may be gone when the outcome comes; the journal has it all the same.
    network_.submit(*message, [this, client = QPointer(link), message = *message](auto result) {
        journal_.record(message, result);
        if (client) {
            client->settle(result);
        }
    });
}

void server::receive(const received_message& message) {
    if (waiting_.size() >= max_waiting) {
        // One line until there is room again, or a burst would flood standard error.
        if (!std::exchange(losing_, true)) {
            complain(u"too many messages wait for a client, further ones are lost"_s);
        }
        return;
    }
    waiting_.push_back(message);
    deliver_next();
}

void server::confirm_delivery(const received_message& message) {
    journal_.record(message);
    waiting_.pop_front();
    delivering_ = false;
    losing_ = false;
    deliver_next();
}

// A message stays at the head of the queue until it is written, so that the next client gets it
// if this one leaves before.
void server::deliver_next() {
    if (delivering_ || waiting_.empty() || links_.isEmpty()) {
        return;
    }
    delivering_ = true;
    links_.first()->send(waiting_.front());
}

} // namespace gateway
