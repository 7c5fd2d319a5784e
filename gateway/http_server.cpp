// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_server.h"

#include "gateway/http_link.h"

#include <algorithm>
#include <utility>

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
    auto* link = new http_link(socket, this);
    connect(link, &http_link::asked, this, [this, link](const http_request& request) {
        if (asked_.isEmpty()) {
            QMetaObject::invokeMethod(this, &http_server::answer_all, Qt::QueuedConnection);
        }
        asked_.emplaceBack(link, request);
    });
    links_.append(link);
    connect(link, &http_link::heard, this,
            [this, link] { links_.move(links_.indexOf(link), links_.size() - 1); });
    connect(link, &http_link::closed, this, [this, link] {
        links_.removeOne(link);
        link->deleteLater();
    });
}

void http_server::answer_all() {
    const auto all = std::exchange(asked_, {});
    QList<http_response> answers;
    const bool gathered =
        gather_ && all.size() > 1 && gather_([this, &all, &answers] {
            for (const auto& [link, request] : all) {
                answers.append(answer(request));
            }
            return std::none_of(answers.begin(), answers.end(),
                                [](const http_response& one) { return one.status == 503; });
        });
    for (qsizetype i = 0; i < all.size(); ++i) {
        const auto& [link, request] = all[i];
        const http_response told = gathered ? answers[i] : answer(request);
        if (link != nullptr) {
            link->answer(told);
        }
    }
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
