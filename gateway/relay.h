// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/cleaner.h"
#include "gateway/dispatcher.h"
#include "gateway/intake.h"
#include "gateway/postman.h"
#include "gateway/server.h"

namespace gateway {

/// The relay as a whole: clients on one side, a network on the other, the store between.
class relay {
public:
    /// All that is handed in outlives it. Throws DataError when the store cannot be read.
    relay(store& file, backend& network, clock& time, const settings& wanted);

    /// Takes up what the last process left, and connects to the network. Throws DataError.
    void start() { dispatcher_.start(); }
    /// Ends in order; `ended` is called when nothing is under way, or after a time.
    void end(const std::function<void()>& ended);

    [[nodiscard]] server& clients() { return server_; }
    [[nodiscard]] dispatcher& messages() { return dispatcher_; }

private:
    clock& clock_;
    postman postman_;
    dispatcher dispatcher_;
    intake intake_;
    cleaner cleaner_;
    server server_;
};

} // namespace gateway
