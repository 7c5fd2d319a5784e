// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_parts.h"

#include "gateway/text_parts.h"

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

QString hex(qint64 number) {
    return u"%1"_s.arg(number & 0xff, 2, 16, QChar(u'0')).toUpper();
}

} // namespace

gammu_text gammu_parts_of(QString text, qint64 reference) {
    const text_parts split = split_text(text.remove(QChar(u'\0')));
    gammu_text result{split.is_unicode, {}};
    const qsizetype count = split.parts.size();
    for (qsizetype i = 0; i < count; ++i) {
        const QString header = u"050003"_s + hex(reference) + hex(count) + hex(i + 1);
        result.parts.append({count > 1 ? header : QString(), split.parts[i]});
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
