// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_message.h"
#include "gateway/settings.h"

#include <QPointer>
#include <QTcpServer>

#include <functional>

namespace gateway {

class http_link;

/// Answers a request, at once, from the event loop's thread. Throws nothing.
using http_handler = std::function<http_response(const http_request&)>;

/// A small HTTP server for the status page and the networks' callbacks: GET and HEAD, all in the
/// event loop's thread, so that handlers may use the store. Neither size, slowness nor number of
/// its clients can hold it up or fill its memory.
class http_server : public QObject {
    Q_OBJECT

public:
    /// The longest request: a received message of 255 parts, every byte of it escaped.
    static constexpr qsizetype max_request = 131'072;
    /// Connections at a time; one more ends the one that was silent for longest. So few that the
    /// descriptors which the relay leaves to others suffice: the toolkit's server spins without
    /// them.
    static constexpr qsizetype max_links = 64;

    explicit http_server(QObject* parent = nullptr);

    /// Lets the handler answer paths that begin with `prefix`; the longest prefix that fits wins.
    /// No handler takes its place. A handler outlives the server or is taken away before it ends.
    void handle(const QByteArray& prefix, const http_handler& handler);

    /// Lets requests that come together be answered within one call of `gather`, which gives false
    /// when they are to be answered one by one instead. Nothing takes its place.
    void gather_in(const std::function<bool(const std::function<bool()>&)>& gather) {
        gather_ = gather;
    }

    /// Listens from now on. Gives the reason if it cannot, else nothing; may then be tried again.
    [[nodiscard]] QString listen(const endpoint& place);

    /// Where it listens, or is to.
    [[nodiscard]] endpoint place() const;

private:
    void accept();
    void serve(QTcpSocket* socket);
    [[nodiscard]] http_response answer(const http_request& request) const;
    void answer_all();

    QTcpServer listener_;
    endpoint wanted_;
    QList<std::pair<QByteArray, http_handler>> handlers_;
    std::function<bool(const std::function<bool()>&)> gather_;
    QList<std::pair<QPointer<http_link>, http_request>> asked_; ///< and not answered yet
    QList<http_link*> links_; ///< the one heard of last at the end
};

} // namespace gateway
