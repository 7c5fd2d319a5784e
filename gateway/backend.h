// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"

#include <functional>

namespace gateway {

/// Where an engine brings what it learns from its network. All of it is called from the event
/// loop's thread, and never from inside a call of the engine's own functions.
class network_sink {
public:
    virtual ~network_sink() = default;

    /// What became of a message that was handed over or asked for: exactly once for every
    /// hand_over() and every ask(). Nothing need be kept for it: if the store cannot be written
    /// just now, the sink itself remembers it.
    virtual void settle(message_id id, const handover& outcome) = 0;

    /// A report; true when it is kept for good (or was before, or names no message that is known).
    /// An engine tells its network that it has the report only then; on false it lets the network
    /// tell it again, or calls again in a second.
    [[nodiscard]] virtual bool take(const report& told) = 0;

    /// The same for a received message, whole or in parts.
    [[nodiscard]] virtual bool take(const incoming_message& message) = 0;
    [[nodiscard]] virtual bool take(const incoming_part& part) = 0;

    /// Keeps all that `work` brings in one go, which is much faster: true when that happened. On
    /// false, when `work` said so or the store could not be written, nothing of it is kept,
    /// whatever the sink said within.
    [[nodiscard]] virtual bool take_together(const std::function<bool()>& work) = 0;

    /// backend::health() tells something else from now on.
    virtual void health_changed() = 0;
};

/// An engine: what speaks to one kind of network, or plays one.
///
/// The relay keeps every message in its store and hands it over by its id, after it has noted that
/// it is about to. An engine never waits and never blocks: it answers through the sink, from the
/// event loop, within a bound of its own (a network that is silent for too long is `unknown` when
/// it may have the message, else `not_now`). An engine repeats nothing that it was handed: whether
/// and when a message goes again is decided above it. After a kill of the gateway, or after
/// `unknown`, the relay asks for the message by its id until the engine knows, and never hands it
/// over again by itself; an engine whose network cannot be asked answers `unknown` and leaves it to
/// a report that may still come.
class backend {
public:
    virtual ~backend() = default;

    /// Connects and serves from now on. The sink outlives the engine. Called once.
    virtual void start(network_sink& sink) = 0;

    /// Hands a message over; settle() is owed for it, later.
    virtual void hand_over(const outgoing_message& message) = 0;

    /// Asks what became of a message that was handed over before, perhaps by an earlier process;
    /// settle() is owed for it, later. `not_now` means here that the network surely never got it.
    virtual void ask(message_id id) = 0;

    /// How many messages may be without their settle() at a time. May change; asked before each.
    [[nodiscard]] virtual int window() const = 0;

    /// While it is not up nothing is handed over and nothing asked for; the engine calls
    /// network_sink::health_changed() when that changes.
    [[nodiscard]] virtual network_health health() const = 0;

    /// Tries the connection for `smsgateway check`, without start(): `done` is called once, from
    /// the event loop, with the fault in one clear line, or with nothing.
    virtual void check(const std::function<void(const QString& fault)>& done) = 0;

    /// Carries out a line of the control channel. Gives the reason if it cannot, else nothing.
    [[nodiscard]] virtual QString command(const QString& line);
};

} // namespace gateway
