// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <optional>

// The short messages of a text with gammu-smsd's spelling of their headers: hexadecimal, its length
// first.

namespace gateway {

/// One short message of a text.
struct gammu_part {
    QString udh; ///< the header, empty for a text in one piece
    QString text;
};

struct gammu_text {
    bool is_unicode = false; ///< UCS-2; else the 7-bit alphabet
    QList<gammu_part> parts; ///< none for a text that cannot be sent
};

/// Of the reference, which tells the parts of one message from those of the next to the same phone,
/// the low 8 bits are used. A NUL, which the engine takes for the end, is left out.
[[nodiscard]] gammu_text gammu_parts_of(QString text, qint64 reference);

/// Which part of what a received message is.
struct part_place {
    int reference = 0;
    int number = 1;
    int count = 1;
};

/// What a header says of it; nothing for a message in one piece or a header that makes no sense.
[[nodiscard]] std::optional<part_place> place_in(const QString& udh);

} // namespace gateway
