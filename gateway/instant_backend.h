// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/wire.h"

#include <functional>
#include <optional>

namespace gateway {

/// A network that answers at once, as the simulator still does.
class instant_backend {
public:
    /// Told once what became of a submission; nothing means that no verdict will ever come.
    using outcome_handler = std::function<void(std::optional<verdict>)>;
    /// Told of every message from the network.
    using receive_handler = std::function<void(const received_message&)>;

    virtual ~instant_backend() = default;

    /// Hands a message over; `done` is called now or later, from the event loop's thread.
    virtual void submit(const submission& message, const outcome_handler& done) = 0;

    /// Says who is told of received messages from now on.
    virtual void set_receive_handler(const receive_handler& handler) = 0;

    /// Carries out a line of the control channel. Gives the reason if it cannot, else nothing.
    [[nodiscard]] virtual QString command(const QString& line) = 0;
};

} // namespace gateway
