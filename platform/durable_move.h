// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <system_error>

/// What becomes of a file that is already at the place of a new one.
enum class existing { keep, replace };

/// Gives a finished file its name in one step: at `to` there is the old file or the whole new one,
/// whatever happens meanwhile. Content and name are on disk on return. Both lie in one folder.
/// Returns why it could not be done, also when there is something at `to` that is to be kept.
[[nodiscard]] std::error_code move_durably(const std::filesystem::path& from,
                                           const std::filesystem::path& to, existing there);
