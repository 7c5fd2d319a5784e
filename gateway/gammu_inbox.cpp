// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_inbox.h"

#include "gateway/gammu_parts.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// UTF-16 from its hexadecimal digits; nothing when they are none.
std::optional<QString> text_from_hex(const QString& hex) {
    const QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
    if (bytes.size() * 2 != hex.size() || bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    QString text;
    for (qsizetype i = 0; i < bytes.size(); i += 2) {
        text += QChar(qFromBigEndian<quint16>(bytes.constData() + i));
    }
    return text;
}

QDateTime time_of(const gammu_inbox_row& row) {
    const auto time = QDateTime::fromString(row.time, u"yyyy-MM-dd HH:mm:ss"_s);
    return time.isValid() ? time : QDateTime::currentDateTime();
}

/// The office reads it in place of what cannot be shown.
QString stand_in(const gammu_inbox_row& row, bool is_data) {
    return is_data ? u"【无法显示】%1 字节的数据，例如彩信通知"_s.arg(row.hex.size() / 2)
                   : u"【空白短信】"_s;
}

} // namespace

std::optional<incoming_part> to_incoming(const gammu_inbox_row& row) {
    const auto place = place_in(row.udh);
    const bool is_data = row.coding == u"8bit";
    if (is_data && place && place->number > 1) {
        return std::nullopt;
    }
    QString text;
    if (!is_data) {
        text = text_from_hex(row.hex).value_or(row.decoded);
    }
    if (text.isEmpty() && (is_data || !place)) {
        text = stand_in(row, is_data);
    }
    // With the time, so that a database made anew does not bring keys that were there before.
    incoming_part part{{u"gammu:%1:%2:%3"_s.arg(row.phone_id, QString::number(row.key), row.time),
                        row.sender, time_of(row), text}};
    if (place && !is_data) {
        part.reference = place->reference;
        part.number = place->number;
        part.count = place->count;
    }
    return part;
}

} // namespace gateway
