// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/options.h"

namespace gateway {

/// Prints the messages of the store, the oldest first; works beside a running gateway. Gives the
/// exit status.
[[nodiscard]] int list_messages(const options& wanted);

} // namespace gateway
