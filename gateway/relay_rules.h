// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/settings.h"

#include <QStringList>

#include <chrono>
#include <optional>

// The rules of the relay: what becomes of a message, and when. Nothing here knows the store, a
// socket or the clock.

namespace gateway {

/// Where a message stands between its client and its phone.
enum class message_state {
    queued,    ///< to be handed over, at a time
    handing,   ///< is being handed over: whether the network has it is known to nobody but itself
    unknown,   ///< was being handed over when the gateway died, or the network went silent
    accepted,  ///< the network has it
    delivered, ///< it is on the phone
    failed,    ///< the network will not deliver it
    dropped,   ///< a person gave it up
};

/// Where the answer to the frame stands that brought a message.
enum class answer_state {
    owed,      ///< written, or about to be, but perhaps not read
    open,      ///< perhaps never read: the client may send the message again
    confirmed, ///< read; the same message again is another one
};

/// Their names in the store.
[[nodiscard]] QString name_of(message_state state);
[[nodiscard]] std::optional<message_state> state_named(const QString& name);
[[nodiscard]] QStringList state_names();
[[nodiscard]] QString name_of(fate what);

/// The state after an engine told what became of handing over.
[[nodiscard]] message_state state_after(message_state before, handover_result result);
/// The state after a report. Reports come in any order, and twice.
[[nodiscard]] message_state state_after(message_state before, fate told);
/// Nothing more is done about such a message; it may be cleaned away one day.
[[nodiscard]] bool is_settled(message_state state);

/// What a person may do: have a message sent again, or give it up. One that the network has is not
/// to be sent again, and one that is being handed over cannot be held back.
[[nodiscard]] bool can_be_resent(message_state state);
[[nodiscard]] bool can_be_dropped(message_state state);

/// How long a message waits that the network did not take now, after so many attempts: 1 s and
/// then twice as long each time, up to 5 minutes.
[[nodiscard]] std::chrono::milliseconds pause_after(int attempts);
/// When to ask again for a message that has been unknown for so long; nothing when it is held for
/// a person, after 10 minutes.
[[nodiscard]] std::optional<std::chrono::milliseconds>
ask_again_after(std::chrono::milliseconds unknown_for);

/// How long after a written answer the link must still live for the answer to count as read.
inline constexpr std::chrono::milliseconds surely_read_after{5'000};
/// An answer is not written later than this after its frame came: the client, which waits for 10 s,
/// might take it for that to its next message.
inline constexpr std::chrono::milliseconds latest_answer{5'000};
/// A client repeats a message at its next poll, which comes every 60 s: when its link has been
/// quiet for two polls and a half, it has nothing to repeat.
inline constexpr std::chrono::milliseconds quiet_until_closed{150'000};
/// An open answer is closed after this in any case.
inline constexpr std::chrono::milliseconds longest_open{24 * 3'600'000};

/// Whether the office is told of a message that failed so.
[[nodiscard]] bool is_told(told_failures wanted, const QString& text, fate told);
/// Why it failed, for the office: in a few words, and in the network's own if it has any.
[[nodiscard]] QString failure_reason(const QString& words, fate told, failure_cause cause);
/// What the office then reads: the reason in a few words and the beginning of the text.
[[nodiscard]] QString failure_notice(const QString& text, fate told, failure_cause cause);

/// The text as the client's store can take it.
[[nodiscard]] QString text_for_client(QString text);

} // namespace gateway
