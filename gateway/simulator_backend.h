// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/instant_backend.h"
#include "gateway/settings.h"

#include <QObject>

namespace gateway {

/// A network made up on the spot, for trials and tests: no message leaves the machine.
class simulator_backend final : public QObject, public instant_backend {
    Q_OBJECT

public:
    /// A network that behaves as the settings say.
    explicit simulator_backend(const simulator_settings& settings);

    void submit(const submission& message, const outcome_handler& done) override;
    void set_receive_handler(const receive_handler& handler) override;

    /// Knows one command: "recv NUMBER TEXT" lets a message arrive from the number, which starts
    /// with its country prefix.
    [[nodiscard]] QString command(const QString& line) override;

private:
    void settle(const submission& message, verdict result, const outcome_handler& done);
    void receive(const QString& sender, const QString& text);

    simulator_settings settings_;
    receive_handler receive_handler_;
};

} // namespace gateway
