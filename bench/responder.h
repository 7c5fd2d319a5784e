// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

/// A gateway that accepts every message at once, for this machine alone, until the object goes. A
/// process of its own answers each client.
class responder {
public:
    /// Forks: before there is any thread.
    responder();
    ~responder();
    responder(const responder&) = delete;
    responder& operator=(const responder&) = delete;

    [[nodiscard]] int port() const noexcept { return port_; }

private:
    int port_ = 0;
    pid_t process_ = 0;
};

/// A connection to a port of this machine that does not hold small frames back; the caller closes
/// it.
[[nodiscard]] int connect_to(int port);
