// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/settings.h"

namespace gateway {

/// Tries what the settings name and prints a line for each. Gives the exit status, 0 when all is
/// well.
[[nodiscard]] int check_settings(const settings& wanted);

} // namespace gateway
