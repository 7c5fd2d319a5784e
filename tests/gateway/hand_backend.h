// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"

#include <QList>
#include <QStringList>

/// A network whose words the test says by hand.
class hand_backend final : public gateway::backend {
public:
    void start(gateway::network_sink& to) override { sink = &to; }
    void hand_over(const gateway::outgoing_message& message) override { handed.append(message); }
    void ask(gateway::message_id id) override { asked.append(id); }
    [[nodiscard]] int window() const override { return room; }
    [[nodiscard]] gateway::network_health health() const override { return {up, QString()}; }
    void check(const std::function<void(const QString&)>& done) override { done({}); }

    gateway::network_sink* sink = nullptr;
    QList<gateway::outgoing_message> handed;
    QList<gateway::message_id> asked;
    int room = 10;
    bool up = true;
};
