// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"

#include <QList>
#include <QMap>

/// Keeps what an engine brings, unless it is told not to.
class hand_sink final : public gateway::network_sink {
public:
    void settle(gateway::message_id id, const gateway::handover& outcome) override {
        settled.insert(id, outcome);
        ++settles;
    }
    [[nodiscard]] bool take(const gateway::report& told) override { return keep(reports, told); }
    [[nodiscard]] bool take(const gateway::incoming_message& message) override {
        return keep(received, message);
    }
    [[nodiscard]] bool take(const gateway::incoming_part& part) override {
        return keep(parts, part);
    }
    [[nodiscard]] bool take_together(const std::function<bool()>& work) override { return work(); }
    void health_changed() override { ++changes; }

    [[nodiscard]] bool has_report(gateway::message_id id, gateway::fate what) const {
        return std::any_of(reports.begin(), reports.end(),
                           [&](const auto& one) { return one.id == id && one.what == what; });
    }

    QMap<gateway::message_id, gateway::handover> settled;
    int settles = 0;
    QList<gateway::report> reports;
    QList<gateway::incoming_message> received;
    QList<gateway::incoming_part> parts;
    bool keeps = true;
    int turned_away = 0;
    int changes = 0; ///< of the health

private:
    template <class News>
    bool keep(QList<News>& all, const News& one) {
        if (keeps) {
            all.append(one);
        } else {
            ++turned_away;
        }
        return keeps;
    }
};
