// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_server.h"

#include "gateway/http_link.h"

namespace gateway {

http_server::http_server(QObject* parent) : QObject(parent) {
    connect(&listener_, &QTcpServer::newConnection, this, &http_server::accept);
}

void http_server::handle(const QByteArray& prefix, const http_handler& handler) {
    handlers_.removeIf([&prefix](const auto& one) { return one.first == prefix; });
    if (handler) {
        handlers_.emplaceBack(prefix, handler);
    }
}

QString http_server::listen(const endpoint& place) {
    wanted_ = place;
    return listener_.listen(place.address, place.port) ? QString() : listener_.errorString();
}

endpoint http_server::place() const {
    return listener_.isListening() ? endpoint{listener_.serverAddress(), listener_.serverPort()}
                                   : wanted_;
}

void http_server::accept() {
    while (QTcpSocket* socket = listener_.nextPendingConnection()) {
        if (links_.size() >= max_links) {
            delete links_.takeFirst();
        }
        serve(socket);
    }
}

void http_server::serve(QTcpSocket* socket) {
    auto* link = new http_link(
        socket, [this](const http_request& request) { return answer(request); }, this);
    links_.append(link);
    connect(link, &http_link::heard, this,
            [this, link] { links_.move(links_.indexOf(link), links_.size() - 1); });
    connect(link, &http_link::closed, this, [this, link] {
        links_.removeOne(link);
        link->deleteLater();
    });
}

http_response http_server::answer(const http_request& request) const {
    const std::pair<QByteArray, http_handler>* best = nullptr;
    for (const auto& one : handlers_) {
        if (request.path.startsWith(one.first) &&
            (best == nullptr || one.first.size() > best->first.size())) {
            best = &one;
        }
    }
    return best == nullptr ? http_response{404, "Not found\n"} : best->second(request);
}

} // namespace gateway
