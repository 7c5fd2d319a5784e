// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What each target defines: takes one input, never keeps anything of it, returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Ends the program with `broken`, the promise that was not kept, so that the input is reported.
inline void expect(bool kept, const char* broken) {
    if (!kept) {
        static_cast<void>(std::fprintf(stderr, "broken: %s\n", broken));
        std::abort();
    }
}

/// The input without a copy: reading beyond its end is then seen.
[[nodiscard]] inline QByteArray view_input(const std::uint8_t* data, std::size_t size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data),
                                   static_cast<qsizetype>(size));
}
