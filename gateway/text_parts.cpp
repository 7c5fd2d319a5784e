// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/text_parts.h"

#include "platform/gsm_alphabet.h"

namespace gateway {

namespace {

struct alphabet {
    qsizetype alone;    ///< units that one message holds
    qsizetype in_a_row; ///< units left in each of several
};

constexpr alphabet gsm7{160, 153};
constexpr alphabet ucs2{70, 67};
constexpr qsizetype most_parts = 255;

/// Where the part that begins at `start` ends.
qsizetype end_of_part(const QString& text, qsizetype start, bool is_unicode, qsizetype room) {
    qsizetype end = start;
    while (end < text.size()) {
        const bool is_pair = end + 1 < text.size() && text.at(end).isHighSurrogate() &&
                             text.at(end + 1).isLowSurrogate();
        const qsizetype wanted = is_pair ? 2 : is_unicode ? 1 : gsm_units(text.at(end).unicode());
        if (wanted > room) {
            break;
        }
        room -= wanted;
        end += is_pair ? 2 : 1;
    }
    return end;
}

} // namespace

text_parts split_text(const QString& text) {
    text_parts result{!is_gsm_text(text), {}};
    const alphabet& used = result.is_unicode ? ucs2 : gsm7;
    const bool is_short = end_of_part(text, 0, result.is_unicode, used.alone) == text.size();
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end =
            end_of_part(text, start, result.is_unicode, is_short ? used.alone : used.in_a_row);
        result.parts.append(text.sliced(start, end - start));
        start = end;
    }
    if (result.parts.size() > most_parts) {
        result.parts.clear();
    }
    return result;
}

QString with_whole_characters(const QString& text) {
    const text_parts split = split_text(text);
    if (!split.is_unicode || split.parts.size() < 2) {
        return text;
    }
    QString whole;
    for (const QString& part : split.parts) {
        whole += part;
        const bool is_short = part.size() < ucs2.in_a_row && &part != &split.parts.last();
        whole += is_short ? QStringLiteral(" ") : QString();
    }
    return whole;
}

} // namespace gateway
