// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/durable_move.h"

#include <windows.h>

namespace {

std::error_code last_error() {
    return {static_cast<int>(::GetLastError()), std::system_category()};
}

/// Makes a file's content durable.
std::error_code sync(const std::filesystem::path& path) {
    HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return last_error();
    }
    const std::error_code error = ::FlushFileBuffers(file) ? std::error_code() : last_error();
    ::CloseHandle(file);
    return error;
}

} // namespace

std::error_code move_durably(const std::filesystem::path& from, const std::filesystem::path& to,
                             existing there) {
    if (const std::error_code error = sync(from)) {
        return error;
    }
    const DWORD replace = there == existing::replace ? MOVEFILE_REPLACE_EXISTING : 0;
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH | replace)
               ? std::error_code()
               : last_error();
}
