// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/gammu_rows.h"
#include "gateway/settings.h"

#include <QElapsedTimer>
#include <QHash>
#include <QTimer>

#include <optional>

namespace gateway {

/// gammu-smsd: one modem, spoken to through the tables of its database. A message is put into its
/// queue under our id and looked for until the engine says that the network took it. What the
/// engine had in hand when it died it would send again; that is kept from it, and unknown.
class gammu_backend final : public backend {
public:
    explicit gammu_backend(gammu_settings settings);

    void start(network_sink& sink) override;
    void hand_over(const outgoing_message& message) override;
    void ask(message_id id) override;
    [[nodiscard]] int window() const override { return settings_.window; }
    [[nodiscard]] network_health health() const override { return health_; }
    void check(const std::function<void(const QString& fault)>& done) override;

private:
    /// A message whose settle() is owed.
    struct owed {
        std::optional<outgoing_message> message; ///< to be queued; else asked for
        qint64 key = 0;                          ///< 0 until it is queued or found
        QElapsedTimer waiting = {};
    };

    void look();
    void look_soon();
    void read_all();
    void queue_new();
    void find_asked();
    void follow(const QMap<qint64, gammu_trace>& traces);
    [[nodiscard]] bool follow(qint64 key, const gammu_trace& trace);
    void follow_owed(qint64 key, const gammu_trace& trace, const gammu_verdict& found);
    void settle_lost(const QMap<qint64, gammu_trace>& traces);
    void settle_silent();
    void settle(message_id id, const handover& outcome);
    void tell(qint64 key, message_id id, const gammu_verdict& found);
    void fetch_received();
    void set_health(const network_health& now);
    [[nodiscard]] bool more_may_come(const gammu_trace& trace, gammu_state state) const;

    gammu_settings settings_;
    network_sink* sink_ = nullptr;
    std::unique_ptr<gammu_rows> rows_;
    network_health health_;
    QTimer timer_;
    QHash<message_id, owed> owed_;
    QHash<qint64, gammu_verdict> told_; ///< by key: what the sink has of it
    QElapsedTimer still_;               ///< since the engine was last seen to do something
    qint64 from_ = 0;                   ///< no row before it matters
    qint64 fetched_ = 0;                ///< every received row up to it is in the store
    bool awaiting_ = false;             ///< reports may still come
    int told_this_look_ = 0;
    bool more_ = false; ///< there is more to be told at once
};

} // namespace gateway
