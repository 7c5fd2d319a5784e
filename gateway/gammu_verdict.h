// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"

#include <QList>

#include <optional>

// What gammu-smsd's tables say of a message. Nothing here knows the database or the clock.

namespace gateway {

/// A row of `sentitems`: one part that was tried.
struct gammu_sent {
    QString status;       ///< the engine's word, "SendingOK" and its like
    int report_code = -1; ///< TP-Status of the report
    int error_code = -1;  ///< the modem's or the network's number of what went wrong
    int reference = -1;   ///< the network's
};

/// A message in `outbox`.
struct gammu_queued {
    bool tried = false;   ///< the engine has had it in hand
    bool sending = false; ///< it took it into its hand and put it neither away nor back
    bool left = false;    ///< and the engine that did so is no more, or stands still
    bool held = false;    ///< this gateway keeps it from being sent
    int parts = 1;
    QString put_away_until = {}; ///< as it stands in the table
};

/// All that the tables hold of one message.
struct gammu_trace {
    message_id id = 0;
    std::optional<gammu_queued> queued = {};
    QList<gammu_sent> sent = {};
    bool recent = true; ///< more may still come of it
};

enum class gammu_state {
    absent,    ///< in no table
    untouched, ///< waits for the engine
    sending,
    retrying, ///< was tried in vain and waits for the next time
    doubtful, ///< the engine died over it: it may be sent, and would be sent again
    held,     ///< was doubtful, or was lost
    accepted,
    refused,
    buffered, ///< accepted, and the network said that it tries on
    delivered,
    undelivered,
};

struct gammu_verdict {
    gammu_state state = gammu_state::absent;
    QString ref = {};
    QString reason = {};
    failure_cause cause = failure_cause::unspecified;

    bool operator==(const gammu_verdict&) const = default;
};

/// A message of several parts is what its worst part is.
[[nodiscard]] gammu_verdict judge(const gammu_trace& trace);

/// The engine is done with it, apart from reports.
[[nodiscard]] bool is_done(gammu_state state);
/// Nothing more will come, also if reports are asked for.
[[nodiscard]] bool is_final(gammu_state state);

/// What became of handing over, for the states that tell.
[[nodiscard]] handover to_handover(const gammu_verdict& found);
/// The same as a report.
[[nodiscard]] std::optional<report> to_report(message_id id, const gammu_verdict& found);

} // namespace gateway
