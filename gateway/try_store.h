// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace gateway {

/// Does what reads or writes the store; false when that failed. A fault is told on standard error
/// once, until something works again: a full disk would otherwise be told with every frame.
bool try_store(const std::function<void()>& work);

} // namespace gateway
