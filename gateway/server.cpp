// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/server.h"

#include "gateway/console.h"
#include "gateway/system_calls.h"
#include "gateway/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

/// Files and sockets that are none of a client's: the store, the engine's, the callbacks'.
constexpr int other_descriptors = 100;

/// Who waits at the door when the gateway wakes up is let in within this time.
constexpr std::chrono::milliseconds letting_in = 1s;

} // namespace

server::server(intake& taking, postman& received, clock& time, int links_per_address)
    : intake_(taking),
      postman_(received),
      clock_(time),
      links_per_address_(links_per_address),
      most_links_(std::clamp(descriptor_limit() - other_descriptors, 10, max_clients)),
      stillness_(time, [this] { distrust_all(); }),
      accept_again_(time.make_alarm([this] { listener_.resumeAccepting(); })) {
    connect(&listener_, &QTcpServer::newConnection, this, &server::accept_clients);
    // The one that cannot be let in would be announced again and again.
    connect(&listener_, &QTcpServer::acceptError, this, [this] {
        listener_.pauseAccepting();
        drop_silent({}, texts::tr("no file is free for another client"));
        accept_again_->set(1s);
    });
}

QString server::listen(const endpoint& place) {
    return listener_.listen(place.address, place.port) ? QString() : listener_.errorString();
}

QString server::adopt(qintptr listener) {
    trusted_from_ = clock_.steady() + letting_in.count();
    return listener_.setSocketDescriptor(listener) ? QString() : listener_.errorString();
}

endpoint server::place() const {
    return {listener_.serverAddress(), listener_.serverPort()};
}

void server::accept_clients() {
    while (QTcpSocket* socket = listener_.nextPendingConnection()) {
        const QString client = socket->peerAddress().toString();
        const bool has_room =
            (count_links(client) < links_per_address_ ||
             drop_silent(client, texts::tr("too many links from %1").arg(client))) &&
            (links_.size() < most_links_ || drop_silent({}, texts::tr("too many links")));
        if (has_room) {
            add_client(socket);
        } else {
            complain(texts::tr("a client at %1 is turned away: too many links").arg(client));
            socket->abort();
            socket->deleteLater();
        }
    }
}

int server::count_links(const QString& client) const {
    return static_cast<int>(
        std::count_if(links_.begin(), links_.end(),
                      [&client](const client_link* link) { return link->client() == client; }));
}

bool server::drop_silent(const QString& client, const QString& reason) {
    const auto silent = std::find_if(links_.begin(), links_.end(), [&](const client_link* link) {
        return !link->has_spoken() && (client.isEmpty() || link->client() == client);
    });
    if (silent == links_.end()) {
        return false;
    }
    (*silent)->drop(reason);
    return true;
}

void server::add_client(QTcpSocket* socket) {
    auto* link = new client_link(socket, clock_, this);
    connect(link, &client_link::arriving, this, [this] { stillness_.check(); });
    connect(link, &client_link::frame_read, this,
            [this, link](const QByteArray& frame, qint64 read_at) {
                take_frame(link, frame, read_at);
            });
    connect(link, &client_link::answer_confirmed, this,
            [this](message_id id) { intake_.confirm(id); });
    connect(link, &client_link::answer_left_open, this,
            [this, link](message_id id) { intake_.leave_open(link->client(), id); });
    connect(link, &client_link::closed, this,
            [this, link](const QString& reason) { remove_client(link, reason); });
    links_.append(link);
    intake_.count_links(link->client(), count_links(link->client()));
    postman_.add(link);
    if (clock_.steady() < trusted_from_) {
        link->distrust(); // it may have left by now
    }
}

void server::remove_client(client_link* link, const QString& reason) {
    if (!reason.isEmpty()) {
        complain(texts::tr("a client at %1 is disconnected: %2").arg(link->client(), reason));
    }
    links_.removeOne(link);
    intake_.count_links(link->client(), count_links(link->client()));
    link->deleteLater();
    postman_.remove(link);
    if (links_.isEmpty()) {
        emit emptied();
    }
}

void server::take_frame(client_link* link, const QByteArray& frame, qint64 read_at) {
    stillness_.busy();
    end_earlier_links(link);
    link->answer(intake_.take(link->client(), frame, read_at, link->release_answer()));
}

/// A client that speaks on a new link has perhaps died, with an answer unread or with a message
/// still to be read: what it repeats must find them.
void server::end_earlier_links(const client_link* link) {
    for (client_link* other : QList(links_)) {
        if (other == link || other->client() != link->client() || !links_.contains(other)) {
            continue;
        }
        other->finish_if_left();
        if (other->is_answer_under_way()) { // the system may not have noticed its end
            intake_.leave_open(link->client(), other->release_answer()->id);
        }
    }
}

void server::distrust_all() {
    complain(texts::tr("the gateway stood still: what came meanwhile is refused"));
    trusted_from_ = clock_.steady() + letting_in.count();
    for (client_link* link : QList(links_)) {
        link->distrust();
    }
}

void server::end(const std::function<void()>& ended) {
    listener_.close();
    ended_ = clock_.make_alarm(ended);
    if (links_.isEmpty()) {
        ended_->set(0ms);
        return;
    }
    // What has already come is still taken and answered.
    end_links_ = clock_.make_alarm([this] {
        for (client_link* link : QList(links_)) {
            link->end();
        }
        ended_->set(3s);
    });
    end_links_->set(50ms);
    connect(this, &server::emptied, this, [this] { ended_->set(0ms); });
}

} // namespace gateway
