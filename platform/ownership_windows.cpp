// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/ownership.h"

// There a file gets from its folder who may use it.
std::error_code copy_ownership(const std::filesystem::path& /*from*/,
                               const std::filesystem::path& /*to*/) {
    return {};
}
