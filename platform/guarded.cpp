// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/guarded.h"

namespace {

error_edge::handler& current_handler() {
    static error_edge::handler handler = [](const std::exception&) { std::terminate(); };
    return handler;
}

} // namespace

void error_edge::set_handler(handler shows) {
    current_handler() = std::move(shows);
}

void error_edge::report(const std::exception& error) {
    current_handler()(error);
}
