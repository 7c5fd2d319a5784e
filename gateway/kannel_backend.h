// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/http_client.h"
#include "gateway/http_server.h"
#include "gateway/kannel_request.h"
#include "gateway/kannel_status.h"

#include <QElapsedTimer>
#include <QTimer>

#include <optional>

namespace gateway {

/// The engine that hands messages to Kannel over HTTP and is called back by it. Kannel cannot be
/// asked for a message, so ask() never knows: only a report tells, or a person.
class kannel_backend final : public QObject, public backend {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(kannel_backend)

public:
    /// Begins the paths that Kannel calls; the secret follows.
    static constexpr QByteArrayView call_prefix = "/kannel/";

    /// `calls` takes Kannel's calls from start() on; it outlives the engine. Without it the engine
    /// can be checked, not started.
    kannel_backend(const kannel_settings& wanted, const QString& secret, http_server* calls);
    ~kannel_backend() override;

    void start(network_sink& sink) override;
    void hand_over(const outgoing_message& message) override;
    void ask(message_id id) override;
    [[nodiscard]] int window() const override { return wanted_.window; }
    [[nodiscard]] network_health health() const override;
    void check(const std::function<void(const QString& fault)>& done) override;

private:
    void settle(message_id id, const http_answer& answer);
    void probe();
    void look();
    void mark_up();
    void mark_down(const QString& fault, std::chrono::milliseconds probe_after);
    [[nodiscard]] http_response take_call(const http_request& request);
    [[nodiscard]] http_response refuse_call(int status, const QString& fault);

    kannel_settings wanted_;
    QByteArray secret_;
    http_server* calls_;
    QByteArray call_base_; ///< the address that Kannel calls, with the secret and a slash
    http_client sendsms_;
    http_client status_;
    network_sink* sink_ = nullptr;
    QString fault_;                      ///< why nothing can be handed over; empty while it can
    std::optional<kannel_status> links_; ///< as status.xml told last
    QTimer probe_;
    QTimer look_;
    std::chrono::milliseconds pause_;
    QString refused_call_; ///< the fault that was logged last
    QElapsedTimer since_refused_call_;
};

} // namespace gateway
