// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_client.h"

#include "gateway/http_client_link.h"

#include <utility>

namespace gateway {

http_client::http_client(QUrl server, std::chrono::milliseconds timeout, QObject* parent)
    : QObject(parent), server_(std::move(server)), timeout_(timeout) {}

void http_client::send(const QByteArray& request, const answer_handler& done) {
    http_client_link* link = nullptr;
    while (link == nullptr && !idle_.isEmpty()) {
        link = idle_.takeLast();
        link = link->is_open() ? link : nullptr; // else it is about to be gone
    }
    link = link == nullptr ? new_link() : link;
    waiting_.insert(link, done);
    link->send(request);
}

http_client_link* http_client::new_link() {
    auto* link = new http_client_link(server_, timeout_, this);
    connect(link, &http_client_link::answered, this, [this, link](const http_answer& answer) {
        idle_.append(link);
        waiting_.take(link)(answer);
    });
    connect(link, &http_client_link::gone, this, [this, link](const http_answer& answer) {
        idle_.removeOne(link);
        link->deleteLater();
        if (const answer_handler done = waiting_.take(link)) {
            done(answer);
        }
    });
    return link;
}

} // namespace gateway
