// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/status_page.h"

#include "gateway/status_views.h"
#include "platform/data_error.h"

#include <QDateTime>

#include <utility>

namespace gateway {

namespace {

/// The name in a Host field, less its port, is an address or this machine's own for itself.
bool is_own_name(const QByteArray& host) {
    QByteArray name = host.toLower();
    const qsizetype bracket = name.indexOf(']');
    const qsizetype port = name.indexOf(':', bracket < 0 ? 0 : bracket);
    name = name.left(port < 0 ? name.size() : port);
    if (name.startsWith('[') && name.endsWith(']')) {
        name = name.sliced(1, name.size() - 2);
    }
    return name.isEmpty() || name == "localhost" ||
           !QHostAddress(QString::fromLatin1(name)).isNull();
}

} // namespace

status_page::status_page(http_server& pages, store& file, const backend& network,
                         const server& clients, const clock& time, QString engine)
    : pages_(pages),
      network_(network),
      clients_(clients),
      clock_(time),
      engine_(std::move(engine)),
      rows_(file) {
    pages_.handle("/", [this](const http_request& request) { return answer(request); });
}

status_page::~status_page() {
    pages_.handle("/", {});
}

http_response status_page::answer(const http_request& request) {
    if (!is_own_name(request.host)) {
        return {403, "Call this gateway by its address.\n"};
    }
    if (request.path == "/") {
        return {200, status_as_page(gather()), "text/html; charset=utf-8"};
    }
    if (request.path == "/status.json") {
        return {200, status_as_json(gather()), "application/json"};
    }
    if (request.path == "/metrics") {
        return {200, status_as_metrics(gather()), "text/plain; version=0.0.4; charset=utf-8"};
    }
    return {404, "Not found\n"};
}

gateway_status status_page::gather() {
    gateway_status status;
    status.now = clock_.now();
    status.engine = engine_;
    status.network = network_.health();
    status.clients = clients_.client_count();
    const QDateTime midnight = QDateTime::fromMSecsSinceEpoch(status.now).date().startOfDay();
    try {
        rows_.read(status, midnight.toMSecsSinceEpoch());
    } catch (const DataError& error) {
        status.store_fault = error.detail();
    }
    return status;
}

} // namespace gateway
