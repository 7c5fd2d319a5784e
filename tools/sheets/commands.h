// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/command.h"

[[nodiscard]] command import_customers_command();
[[nodiscard]] command export_customers_command();
