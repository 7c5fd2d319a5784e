// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/clock.h"
#include "gateway/schedule.h"
#include "gateway/settings.h"
#include "gateway/store.h"
#include "platform/database/bound_statement.h"

#include <QList>

#include <optional>

namespace gateway {

/// A network made up on the spot, for trials and tests: no message leaves the machine. What it was
/// handed stands in a table `simulated` of the store, a row every time: how often a phone would
/// have rung, and what it answers when it is asked.
class simulator_backend final : public backend {
public:
    /// A network that behaves as the settings say.
    simulator_backend(store* file, clock& time, const simulator_settings& settings);

    void start(network_sink& sink) override;
    void hand_over(const outgoing_message& message) override;
    void ask(message_id id) override;
    [[nodiscard]] int window() const override { return settings_.window; }
    [[nodiscard]] network_health health() const override;
    void check(const std::function<void(const QString& fault)>& done) override;

    /// Knows "recv NUMBER TEXT", which lets a message arrive from the number, "up" and "down".
    [[nodiscard]] QString command(const QString& line) override;

private:
    [[nodiscard]] QString roll() const;
    void remember();
    void answer(const outgoing_message& message, const QString& outcome);
    void report_later(const outgoing_message& message);
    void receive(const QString& sender, const QString& text);
    void bring(const std::function<bool()>& what);

    struct handed {
        outgoing_message message;
        QString outcome;
    };

    store* store_; ///< from start() on
    clock& clock_;
    simulator_settings settings_;
    network_sink* sink_ = nullptr;
    std::optional<bound_statement> insert_;
    std::optional<bound_statement> find_;
    QList<handed> handed_; ///< not in the table yet
    std::unique_ptr<alarm> remember_;
    schedule later_;
    bool up_ = true;
};

} // namespace gateway
