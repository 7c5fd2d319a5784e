// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/options.h"

namespace gateway {

// What a person asks for or decides about one message: each works on the store, also while a
// gateway serves from it, and gives the program's exit status.

/// Prints all that is known of the message.
[[nodiscard]] int show_message(const options& wanted);

/// Lets the message go to the network once more, at once.
[[nodiscard]] int resend_message(const options& wanted);

/// Gives the message up.
[[nodiscard]] int drop_message(const options& wanted);

} // namespace gateway
