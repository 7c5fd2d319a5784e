// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/wire.h"

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

// Reads a frame whose length takes the first `digits` characters.
std::optional<submission> parse_with(QStringView frame, qsizetype digits) {
    if (frame.size() < digits || !are_digits(frame.first(digits))) {
        return std::nullopt;
    }
    const qsizetype length = frame.first(digits).toInt();
    const QStringView rest = frame.sliced(digits);
    if (rest.size() < length || !is_number(rest.first(length))) {
        return std::nullopt;
    }
    return submission{rest.first(length).toString(), rest.sliced(length).toString()};
}

QString with_length(const QString& field) {
    return u"%1"_s.arg(field.size(), 2, 10, QChar(u'0')) + field;
}

} // namespace

bool is_number(QStringView text) {
    return are_digits(text.startsWith(u'+') ? text.sliced(1) : text);
}

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
    if (auto message = parse_with(text, 2)) {
        return message;
    }
    return parse_with(text, 1);
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
