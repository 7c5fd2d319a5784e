// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/wire.h"

#include "gateway/numbers.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

bool is_digit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool are_digits(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), is_digit);
}

// What the first `digits` characters say is the mobile; nothing if they are no length.
std::optional<QStringView> mobile_field(QStringView frame, qsizetype digits) {
    if (frame.size() < digits || !are_digits(frame.first(digits))) {
        return std::nullopt;
    }
    const qsizetype length = frame.first(digits).toInt();
    const QStringView rest = frame.sliced(digits);
    return rest.size() < length ? std::nullopt : std::optional(rest.first(length));
}

bool looks_like_number(QStringView field) {
    const QString bare = bare_number(field);
    return are_digits(bare.startsWith(u'+') ? QStringView(bare).sliced(1) : bare);
}

QString with_length(const QString& field) {
    return u"%1"_s.arg(field.size(), 2, 10, QChar(u'0')) + field;
}

} // namespace

QByteArray encode_text(QStringView text) {
    if (text.isEmpty()) {
        return {}; // an empty view may be null, which the conversion must not be given
    }
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

QString decode_text(const QByteArray& bytes) {
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<quint16>(bytes.constData(), text.size(), text.data());
    if (bytes.size() % 2 != 0) {
        text += QChar(QChar::ReplacementCharacter);
    }
    return text;
}

std::optional<submission> parse_submission(const QByteArray& frame) {
    // Half a character means that bytes were lost: better refused than sent garbled.
    if (frame.size() % 2 != 0) {
        return std::nullopt;
    }
    const QString text = decode_text(frame);
    for (const qsizetype digits : {2, 1}) {
        const auto field = mobile_field(text, digits);
        if (!field || !looks_like_number(*field)) {
            continue;
        }
        if (!is_number(bare_number(*field))) {
            return std::nullopt;
        }
        return submission{field->toString(), text.sliced(digits + field->size())};
    }
    return std::nullopt;
}

QString verdict_code(verdict result) {
    return result == verdict::sent ? u"1"_s : u"2"_s;
}

QByteArray encode(verdict result) {
    return encode_text(verdict_code(result));
}

QByteArray encode(const received_message& message) {
    return encode_text(u"0"_s + with_length(message.sender) +
                       with_length(message.time.toString(u"yyMMddHHmmss"_s)) + message.text);
}

} // namespace gateway
