// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <optional>

// What the relay asks of the operating system, one file a system. Where a system cannot tell, the
// answer is nothing, and the rules that build on it fall back on time and on the next frame.

namespace gateway {

/// Milliseconds since the machine was started, those included in which it slept.
[[nodiscard]] qint64 milliseconds_since_boot();

/// How many of them it has slept.
[[nodiscard]] qint64 milliseconds_slept();

/// Bytes written to a connected socket that the other end's system has not acknowledged.
[[nodiscard]] std::optional<qint64> unacknowledged_bytes(qintptr socket);

/// The most bytes that arrive over this connection in one piece.
[[nodiscard]] std::optional<qint64> segment_size(qintptr socket);

/// Whether the other end has ended its side, also when it sent something before that is not read
/// yet.
[[nodiscard]] bool has_other_end_left(qintptr socket);

/// Ends our side of a connection in order; what the other end still sends can be read.
void end_sending(qintptr socket);

/// How many files and sockets this process may have open.
[[nodiscard]] int descriptor_limit();

/// A listening socket that the service manager opened for this process and hands over.
[[nodiscard]] std::optional<qintptr> inherited_listener();

/// Tells the service manager how this process stands ("READY=1", "STOPPING=1"), if there is one
/// that listens.
void tell_service_manager(const char* state);

} // namespace gateway
