// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/clock.h"
#include "gateway/dispatch_rows.h"
#include "gateway/postman.h"
#include "gateway/settings.h"

#include <QSet>

namespace gateway {

/// Hands messages over to the network and keeps what becomes of them. That an attempt begins is on
/// disk before the network hears of it; what was begun when the gateway died is asked for and never
/// sent blindly.
class dispatcher final : public network_sink {
public:
    /// Serves the messages of the store from start() on. All that is handed in outlives it.
    dispatcher(store& file, backend& network, clock& time, postman& received, told_failures told);

    void start();
    /// There may be something to hand over; soon, so that what comes together goes together.
    void wake();
    /// Begins nothing any more; `ended` is called when nothing is under way, or after a time.
    void end(std::function<void()> ended);

    void settle(message_id id, const handover& outcome) override;
    [[nodiscard]] bool take(const report& told) override;
    [[nodiscard]] bool take(const incoming_message& message) override;
    [[nodiscard]] bool take(const incoming_part& part) override;
    [[nodiscard]] bool take_together(const std::function<bool()>& work) override;
    void health_changed() override;

private:
    void run();
    void hand_over_due();
    void ask_for_unknown();
    void wait_for_next();
    [[nodiscard]] int room() const;
    void keep_outcomes();
    void write_outcomes();
    void forget_outcomes();
    void keep_outcome(message_id id, const handover& outcome);
    [[nodiscard]] message_change change_for(const message_row& row, const handover& outcome,
                                            qint64 now) const;
    void tell_failure(const message_row& row, fate told, failure_cause cause, qint64 now);

    store& store_;
    backend& network_;
    clock& clock_;
    postman& received_;
    told_failures told_;
    dispatch_rows rows_;
    QSet<message_id> under_way_;
    QList<std::pair<message_id, handover>> outcomes_; ///< not kept yet
    std::unique_ptr<alarm> run_;
    std::unique_ptr<alarm> keep_;
    std::unique_ptr<alarm> ended_;
    bool waiting_for_room_ = false; ///< goes on as soon as something is settled
    bool waiting_long_ = false;     ///< for a message's moment: what comes meanwhile goes before
    bool ending_ = false;
};

} // namespace gateway
