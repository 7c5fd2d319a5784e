// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_parts.h"

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

struct alphabet {
    qsizetype alone;    ///< units that one message holds
    qsizetype in_a_row; ///< units left in each of several
};

constexpr alphabet gsm7{160, 153};
constexpr alphabet ucs2{70, 67};
constexpr qsizetype most_parts = 255;

/// Units of a character in the 7-bit alphabet: two behind the escape; 0 when it is not in it.
qsizetype gsm7_units(QChar character) {
    static const QString basic =
        u"@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿abcdefghijklmnopqrstuvwxyzäöñüà"_s;
    static const QString escaped = u"\f^{}\\[~]|€"_s;
    return basic.contains(character) ? 1 : escaped.contains(character) ? 2 : 0;
}

/// Where the part that begins at `start` ends.
qsizetype end_of_part(const QString& text, qsizetype start, bool is_unicode, qsizetype room) {
    qsizetype end = start;
    while (end < text.size()) {
        const bool is_pair = end + 1 < text.size() && text.at(end).isHighSurrogate() &&
                             text.at(end + 1).isLowSurrogate();
        const qsizetype wanted = is_pair ? 2 : is_unicode ? 1 : gsm7_units(text.at(end));
        if (wanted > room) {
            break;
        }
        room -= wanted;
        end += is_pair ? 2 : 1;
    }
    return end;
}

QString hex(qint64 number) {
    return u"%1"_s.arg(number & 0xff, 2, 16, QChar(u'0')).toUpper();
}

} // namespace

bool fits_gsm7(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return gsm7_units(c) > 0; });
}

gammu_text split_text(QString text, qint64 reference) {
    text.remove(QChar(u'\0'));
    gammu_text result{!fits_gsm7(text), {}};
    const alphabet& used = result.is_unicode ? ucs2 : gsm7;
    if (text.isEmpty() || end_of_part(text, 0, result.is_unicode, used.alone) == text.size()) {
        result.parts = text.isEmpty() ? QList<gammu_part>() : QList<gammu_part>{{{}, text}};
        return result;
    }
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = end_of_part(text, start, result.is_unicode, used.in_a_row);
        result.parts.append({{}, text.sliced(start, end - start)});
        start = end;
    }
    if (result.parts.size() > most_parts) {
        result.parts.clear();
    }
    for (qsizetype i = 0; i < result.parts.size(); ++i) {
        result.parts[i].udh = u"050003"_s + hex(reference) + hex(result.parts.size()) + hex(i + 1);
    }
    return result;
}

std::optional<part_place> place_in(const QString& udh) {
    constexpr qsizetype short_reference = 3; // bytes of data that name the place
    constexpr qsizetype long_reference = 4;
    const QByteArray header = QByteArray::fromHex(udh.toLatin1());
    const auto byte = [&header](qsizetype i) { return static_cast<uchar>(header.at(i)); };
    // Elements, each a kind, a length and so many bytes.
    for (qsizetype at = 1; at + 1 < header.size(); at += 2 + byte(at + 1)) {
        const int kind = byte(at);
        const qsizetype length = byte(at + 1);
        const qsizetype data = at + 2;
        const bool names_place =
            (kind == 0 && length == short_reference) || (kind == 8 && length == long_reference);
        if (!names_place || data + length > header.size()) {
            continue;
        }
        const part_place place{
            kind == 0 ? byte(data) : byte(data) << 8 | byte(data + 1),
            byte(data + length - 1),
            byte(data + length - 2),
        };
        const bool makes_sense =
            place.count > 1 && place.number >= 1 && place.number <= place.count;
        return makes_sense ? std::optional(place) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace gateway
