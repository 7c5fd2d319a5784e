// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace gateway {

/// A text as the short messages that carry it (GSM 03.38 and 03.40).
struct text_parts {
    bool is_unicode = false; ///< UCS-2; else the 7-bit alphabet
    QStringList parts;       ///< none for an empty text and for one that needs more than 255
};

/// A text that fits one message stays whole (160 units of 7 bits, or 70 of 16); a longer one goes
/// in parts of 153 or 67, and no character is cut in two.
[[nodiscard]] text_parts split_text(const QString& text);

/// The text for an engine that cuts every 67 units, also between the halves of an emoji, which a
/// phone that reads every part by itself cannot show: with a blank in front of such an emoji.
[[nodiscard]] QString with_whole_characters(const QString& text);

} // namespace gateway
