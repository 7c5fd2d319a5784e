// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

namespace gateway {

/// The relay's own number of a message. Never used again, also after a cleaning, so a network may
/// keep it for as long as it likes.
using message_id = qint64;

/// A message for the network. The number is in network form ("+8613912345678", or a short code).
struct outgoing_message {
    message_id id = 0;
    QString number;
    QString text; ///< not empty, any characters, up to 4,096 of them
};

/// Why a message came to nothing, as far as the network tells it. The office reads it in a few
/// words of its own language; the network's own words go into the reason beside it.
enum class failure_cause {
    unspecified,
    bad_number, ///< there is no such number, or the network does not serve it
    blocked,    ///< the receiver, or a list of the network, does not want it
    content,    ///< the network does not take this text
    credit,     ///< the account is empty or over its limit
    absent,     ///< the phone was not reached
    expired,    ///< it was tried for as long as the network tries
};

/// What became of handing a message over.
enum class handover_result {
    accepted, ///< the network has it; reports may follow
    refused,  ///< the network will never take it
    not_now,  ///< the network surely does not have it and may take it later
    unknown,  ///< whether the network has it cannot be told (yet)
};

struct handover {
    handover_result result = handover_result::unknown;
    QString ref = {};    ///< the network's reference, if accepted and if it gives one
    QString reason = {}; ///< the network's or the engine's own words, in one line
    failure_cause cause = failure_cause::unspecified;
};

/// What a network reports of a message, in any order, and perhaps before it said that it took it.
enum class fate {
    accepted,    ///< the network took it
    buffered,    ///< it tries on
    delivered,   ///< it is on the phone
    undelivered, ///< it was given up
    refused,     ///< the network took it from the engine but will not carry it
};

struct report {
    message_id id = 0;
    fate what = fate::accepted;
    QString ref = {};
    QString reason = {};
    failure_cause cause = failure_cause::unspecified;
};

/// A message from the network. The key is the network's own and tells it from every other that
/// this network ever brings; the sender is in network form, or a name.
struct incoming_message {
    QString key;
    QString sender;
    QDateTime time;
    QString text;
};

/// A piece of a long message, for engines whose network does not join them. Pieces of one message
/// have the sender, the reference and the count in common; `number` runs from 1.
struct incoming_part {
    incoming_message piece;
    int reference = 0;
    int number = 1;
    int count = 1;
};

/// How the link to the network stands, with a line for the page and the log.
struct network_health {
    bool up = false;
    QString text = {};
};

} // namespace gateway
