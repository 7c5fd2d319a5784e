// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/command.h"

namespace old_format {

[[nodiscard]] command import_command();
[[nodiscard]] command read_old_command();

} // namespace old_format
