// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/clock.h"
#include "gateway/http_server.h"
#include "gateway/server.h"
#include "gateway/status_rows.h"

namespace gateway {

/// Shows how the gateway stands, at "/", "/status.json" and "/metrics". Anybody who can reach the
/// address may read it, but no web page on its way through somebody's browser: what is asked for
/// under a name other than localhost is refused, for such a name may lead here from elsewhere.
class status_page {
public:
    /// Takes its places on `pages` until it ends. All that is handed in outlives it. Throws
    /// DataError.
    status_page(http_server& pages, store& file, const backend& network, const server& clients,
                const clock& time, QString engine);
    ~status_page();
    Q_DISABLE_COPY_MOVE(status_page)

private:
    [[nodiscard]] http_response answer(const http_request& request);
    [[nodiscard]] gateway_status gather();

    http_server& pages_;
    const backend& network_;
    const server& clients_;
    const clock& clock_;
    QString engine_;
    status_rows rows_;
};

} // namespace gateway
