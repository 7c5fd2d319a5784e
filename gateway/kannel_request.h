// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/settings.h"

namespace gateway {

// What is said to Kannel's "sendsms" and what its answers mean. The account goes into fields of the
// head, where no log of addresses meets it, and the text into the body, as long as it may be. The
// version is 1.0, so that no answer comes in chunks.

/// The bytes that hand a message over; Kannel reports to `report_url`.
[[nodiscard]] QByteArray kannel_submission(const kannel_settings& wanted,
                                           const outgoing_message& message,
                                           const QByteArray& report_url);

/// The bytes of a request that nothing can come of, for it names no receiver: it tells whether
/// Kannel is there and knows the account.
[[nodiscard]] QByteArray kannel_probe(const kannel_settings& wanted);

/// The bytes that ask for the state of Kannel and its links.
[[nodiscard]] QByteArray kannel_status_request(const kannel_settings& wanted);

/// Where Kannel is to report what becomes of a message; `base` ends with a slash.
[[nodiscard]] QByteArray kannel_report_url(const QByteArray& base, message_id id);

/// What an answer to a submission means. One that is the settings' fault says nothing of the
/// message, which then waits.
struct kannel_verdict {
    handover outcome;
    bool bad_settings = false;
};

[[nodiscard]] kannel_verdict read_submission_answer(int status, const QByteArray& body);

/// What an answer to the probe means: the fault, or nothing.
[[nodiscard]] QString read_probe_answer(int status, const QByteArray& body);

/// Why a network did not take or deliver a message, by the words that centres use for it.
[[nodiscard]] failure_cause kannel_failure_cause(const QString& words);

} // namespace gateway
