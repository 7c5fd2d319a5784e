// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"

#include <QObject>

#include <chrono>

namespace gateway {

/// How the simulated network behaves. Rates are probabilities from 0 to 1; drops go first when
/// the two add up to more than 1.
struct simulator_settings {
    double fail_rate = 0;
    double drop_rate = 0;
    std::chrono::milliseconds delay{0};
    bool echo = false;
    std::chrono::milliseconds echo_delay{1'000};
};

/// A network made up on the spot, for trials and tests: no message leaves the machine.
class simulator_backend final : public QObject, public backend {
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
