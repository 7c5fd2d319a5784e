// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/gateway_frame.h"

#include "platform/conversion.h"
#include "platform/data_error.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype prefix_length = 2; // such as a country code

qsizetype parse_length(const QString& digits) {
    const bool two_digits = digits.size() == 2 && digits[0] >= u'0' && digits[0] <= u'9' &&
                            digits[1] >= u'0' && digits[1] <= u'9';
    if (!two_digits) {
        throw DataError(DataError::Kind::conversion, u"\"%1\" is no length"_s.arg(digits));
    }
    return digits.toInt();
}

QDateTime parse_time(const QString& field) {
    const QString time = u"20"_s + field;
    return to_datetime(time.mid(0, 4) + u'/' + time.mid(4, 2) + u'/' + time.mid(6, 2) + u' ' +
                       time.mid(8, 2) + u':' + time.mid(10, 2) + u':' + time.mid(12, 2));
}

} // namespace

QString gateway_frame::outgoing(const QString& mobile, const QString& text) {
    return QString::number(mobile.size()) + mobile + text;
}

QByteArray gateway_frame::to_bytes(const QString& frame) {
    QByteArray bytes(frame.size() * 2, Qt::Uninitialized);
    qToLittleEndian<quint16>(frame.utf16(), frame.size(), bytes.data());
    return bytes;
}

QString gateway_frame::from_bytes(const QByteArray& bytes) {
    QByteArray even = bytes;
    if (even.size() % 2 != 0) {
        even.append('\0');
    }
    QString frame(even.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<quint16>(even.constData(), frame.size(), frame.data());
    return frame;
}

gateway_frame::received gateway_frame::parse_received(const QString& frame) {
    const qsizetype sender_length = parse_length(frame.mid(1, 2));
    const QString sender = frame.mid(3, sender_length);
    const qsizetype time_length = parse_length(frame.mid(3 + sender_length, 2));
    const QString time = frame.mid(5 + sender_length, time_length);
    return {.mobile = sender.mid(prefix_length),
            .time = parse_time(time),
            .text = frame.mid(5 + sender_length + time_length)};
}
