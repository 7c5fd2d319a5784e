// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Units of a character in the 7-bit alphabet of GSM 03.38: two with its escape, 0 when it is not
/// in it.
[[nodiscard]] qsizetype gsm_units(char32_t character);

/// Every character of the text is in that alphabet.
[[nodiscard]] bool is_gsm_text(const QString& text);
