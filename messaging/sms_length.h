// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How long a text is on its way through a mobile network.
struct sms_length {
    qsizetype characters = 0; ///< code points
    qsizetype messages = 0;   ///< short messages that it is split into; none for no text

    /// Counts in the 7-bit alphabet of GSM 03.38 (160 units in one message, 153 in each of several)
    /// or, when a character is not in it, in 16-bit units (70 and 67). No character is cut in two.
    [[nodiscard]] static sms_length of(const QString& text);
    /// The same in words.
    [[nodiscard]] static QString tell(const QString& text);
};
