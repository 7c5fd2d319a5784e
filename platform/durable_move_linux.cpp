// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/durable_move.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::error_code last_error() {
    return {errno, std::system_category()};
}

/// Makes a file's content, or a folder's entries, durable.
std::error_code sync(const std::filesystem::path& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return last_error();
    }
    const std::error_code error = ::fsync(descriptor) == 0 ? std::error_code() : last_error();
    ::close(descriptor);
    return error;
}

bool rename(const char* from, const char* to, existing there) {
    if (there == existing::replace) {
        return std::rename(from, to) == 0;
    }
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return true;
    }
    // Some network file systems have only this way of not replacing.
    return errno == EINVAL && ::link(from, to) == 0 && ::unlink(from) == 0;
}

} // namespace

std::error_code move_durably(const std::filesystem::path& from, const std::filesystem::path& to,
                             existing there) {
    if (const std::error_code error = sync(from)) {
        return error;
    }
    if (!rename(from.c_str(), to.c_str(), there)) {
        return last_error();
    }
    return sync(to.has_parent_path() ? to.parent_path() : ".");
}
