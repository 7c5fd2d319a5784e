// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A telephone number as it is dialled: digits, after a "+" when it is another country's. Blanks,
/// hyphens and brackets of any kind go, wide digits become plain ones, and so does +86, 0086 or 86
/// before the eleven digits of a mobile number. Empty when that leaves no number of 3 to 20 digits,
/// the shortest and longest that a network takes.
[[nodiscard]] QString dialled_number(const QString& written);
