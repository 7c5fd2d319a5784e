// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_message.h"
#include "gateway/network.h"

#include <variant>

namespace gateway {

// What Kannel tells by calling an address of ours: reports at ".../report", received messages at
// ".../received". Everything in a call is checked, for anything on the network could send it.

/// Why a call is not taken, in one line; never with the secret or a text in it.
struct callback_fault {
    QString text;
};

/// Reads a report: id (ours), type (1, 2, 4, 8, 16), ans and fid, which may be missing.
[[nodiscard]] std::variant<report, callback_fault> read_kannel_report(const http_fields& query);

/// Reads a received message: id (Kannel's), from, time (Unix), text (%b), coding (%c), charset
/// (%C). A message that is no text comes as its bytes written in hexadecimal.
[[nodiscard]] std::variant<incoming_message, callback_fault>
read_kannel_message(const http_fields& query);

/// Which call a path is, in constant time for a secret of the same length.
enum class kannel_call { none, report, message };

/// `path` is what follows the prefix: "SECRET/report" or "SECRET/received".
[[nodiscard]] kannel_call which_call(QByteArrayView path, QByteArrayView secret);

} // namespace gateway
