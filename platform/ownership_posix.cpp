// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/ownership.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

std::error_code copy_ownership(const std::filesystem::path& from, const std::filesystem::path& to) {
    struct stat wanted {};
    struct stat there {};
    bool is_done = ::stat(from.c_str(), &wanted) == 0 && ::stat(to.c_str(), &there) == 0;
    if (is_done && (wanted.st_uid != there.st_uid || wanted.st_gid != there.st_gid)) {
        is_done = ::chown(to.c_str(), wanted.st_uid, wanted.st_gid) == 0;
    }
    constexpr mode_t permissions = 07777;
    is_done = is_done && ::chmod(to.c_str(), wanted.st_mode & permissions) == 0;
    return is_done ? std::error_code() : std::error_code(errno, std::system_category());
}
