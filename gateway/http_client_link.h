// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_client.h"

#include <QTcpSocket>
#include <QTimer>

namespace gateway {

/// One connection of an HTTP client, with one request at a time.
class http_client_link : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(http_client_link)

public:
    /// Connects with the first request.
    http_client_link(QUrl server, std::chrono::milliseconds timeout, QObject* parent);
    ~http_client_link() override;

    /// Sends a request; answered() or gone() follows, from the event loop.
    void send(const QByteArray& request);

    /// Connected, also after whatever has arrived but was not noticed yet: a request written into a
    /// connection that the server ended would be one of which nobody knows.
    [[nodiscard]] bool is_open();

signals:
    /// The answer came, and the connection is free for another request.
    void answered(const gateway::http_answer& answer);
    /// The connection is over, with the answer or the reason why there is none.
    void gone(const gateway::http_answer& answer);

private:
    void write();
    void read(bool ended);
    void fail(const QString& fault);
    void end(const http_answer& answer);

    QTcpSocket socket_;
    QUrl server_;
    std::chrono::milliseconds timeout_;
    QTimer patience_;
    QByteArray request_; ///< not written yet
    QByteArray buffer_;
    bool was_written_ = false;
    bool busy_ = false;
};

} // namespace gateway
