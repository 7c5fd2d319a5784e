// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <functional>

namespace gateway {

class http_client_link;

/// What became of a request.
struct http_answer {
    int status = 0; ///< 0 when none came
    QByteArray body = {};
    QString fault = {};       ///< why none came, in one line
    bool was_written = false; ///< the server may have the request, wholly or in part
};

/// A client of one HTTP server that never sends a request a second time: whether the server may
/// have a request that came to no answer is told instead. Keeps connections for the next requests,
/// as many at a time as there are requests. The toolkit's own client sends a request again by
/// itself when a kept connection ends before the answer.
class http_client : public QObject {
    Q_OBJECT

public:
    using answer_handler = std::function<void(const http_answer& answer)>;

    /// Speaks to the host and port of `server`. An answer may take as long as `timeout`.
    http_client(QUrl server, std::chrono::milliseconds timeout, QObject* parent = nullptr);

    /// Sends a whole request, which asks for the connection to be kept. `done` is called once, from
    /// the event loop; never if the client ends before.
    void send(const QByteArray& request, const answer_handler& done);

private:
    [[nodiscard]] http_client_link* new_link();

    QUrl server_;
    std::chrono::milliseconds timeout_;
    QList<http_client_link*> idle_;
    QHash<http_client_link*, answer_handler> waiting_;
};

} // namespace gateway
