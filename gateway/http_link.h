// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_server.h"

#include <QTcpSocket>
#include <QTimer>

namespace gateway {

/// One connection to the HTTP server: requests one after another, each answered before the next is
/// read. One that is slower or greedier than any honest client is ended.
class http_link : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(http_link)

public:
    /// Serves the connected socket and becomes its parent.
    http_link(QTcpSocket* socket, QObject* parent);
    ~http_link() override;

    /// The answer to the request that was asked last.
    void answer(const http_response& response);

signals:
    /// A request came; answer() is owed for it, and nothing more is read until then.
    void asked(const gateway::http_request& request);
    /// Something came.
    void heard();
    /// The connection is over.
    void closed();

private:
    void read();
    [[nodiscard]] bool serve_next();
    void watch(bool served);
    void drain();
    void finish();
    void lose_patience();

    QTcpSocket* socket_;
    QByteArray buffer_;
    http_request request_; ///< that is asked
    QTimer patience_;
    bool asking_ = false;    ///< an answer is owed
    bool between_ = false;   ///< nothing of a next request has come
    bool ending_ = false;    ///< no request is read any more
    bool finishing_ = false; ///< closing as soon as the answer is written
    qint64 drained_ = 0;
};

} // namespace gateway
