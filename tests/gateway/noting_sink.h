// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"

#include <QHash>

/// The relay's end of an engine: notes all it is told.
class noting_sink final : public gateway::network_sink {
public:
    void settle(gateway::message_id id, const gateway::handover& outcome) override {
        settled.emplaceBack(id, outcome);
    }
    [[nodiscard]] bool take(const gateway::report& told) override {
        reports.append(told);
        return keeps;
    }
    [[nodiscard]] bool take(const gateway::incoming_message& message) override {
        received.append(message);
        return keeps;
    }
    [[nodiscard]] bool take(const gateway::incoming_part&) override { return keeps; }
    void health_changed() override { ++changes; }

    [[nodiscard]] bool has_report(gateway::message_id id, gateway::fate what) const {
        return std::any_of(reports.begin(), reports.end(), [&](const gateway::report& one) {
            return one.id == id && one.what == what;
        });
    }

    QList<std::pair<gateway::message_id, gateway::handover>> settled;
    QList<gateway::report> reports;
    QList<gateway::incoming_message> received;
    bool keeps = true;
    int changes = 0;
};
