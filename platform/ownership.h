// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <system_error>

/// Gives a file the owner, group and permissions of another one. Returns why it cannot be done.
[[nodiscard]] std::error_code copy_ownership(const std::filesystem::path& from,
                                             const std::filesystem::path& to);
