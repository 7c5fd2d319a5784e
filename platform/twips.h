// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Lengths in the store are twips, 1/1440 inch; `dpi` is the screen's logical resolution.
namespace twips {

inline constexpr int per_inch = 1440;

[[nodiscard]] constexpr int to_pixels(double length, int dpi) {
    return qRound(length * dpi / per_inch);
}

[[nodiscard]] constexpr int from_pixels(int pixels, int dpi) {
    return qRound(static_cast<double>(pixels) * per_inch / dpi);
}

} // namespace twips
