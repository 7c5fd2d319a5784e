// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/conversion.h"

#include "platform/data_error.h"

#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QVariant& value, const QString& wanted) {
    throw DataError(DataError::Kind::conversion,
                    u"\"%1\" is not %2"_s.arg(value.toString().left(40), wanted));
}

} // namespace

qint16 to_int16(const QString& text) {
    bool ok = false;
    const qint16 number = text.trimmed().toShort(&ok, 10);
    if (!ok) {
        refuse(text, u"a 16-bit number"_s);
    }
    return number;
}

qint16 to_int16(const QVariant& value) {
    if (value.typeId() == QMetaType::LongLong) { // the usual case, read thousands of times a poll
        const qlonglong number = value.toLongLong();
        if (!std::in_range<qint16>(number)) {
            refuse(value, u"a 16-bit number"_s);
        }
        return static_cast<qint16>(number);
    }
    return value.isNull() ? to_int16(QString()) : to_int16(value.toString());
}

bool to_boolean(const QVariant& value) {
    const QString text = value.toString().trimmed();
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (ok) {
        return number != 0.0;
    }
    if (text.compare("True"_L1, Qt::CaseInsensitive) == 0) {
        return true;
    }
    if (text.compare("False"_L1, Qt::CaseInsensitive) != 0) {
        refuse(value, u"a truth value"_s);
    }
    return false;
}

QString to_text(const QVariant& value) {
    if (value.isNull()) {
        throw DataError(DataError::Kind::conversion, u"invalid use of Null"_s);
    }
    return value.toString();
}

QDateTime read_datetime(QStringView text) {
    static const QRegularExpression pattern(
        uR"(^\s*([0-9]{4})([/-])([0-9]{1,2})\2([0-9]{1,2})(?:[ T]+([0-9]{1,2}):([0-9]{1,2})(?::([0-9]{1,2}))?)?\s*$)"_s);
    const auto match = pattern.match(text.toString());
    if (!match.hasMatch()) {
        return {};
    }
    const auto part = [&match](int group) { return match.capturedView(group).toInt(); };
    const QDate date(part(1), part(3), part(4));
    const QTime time(part(5), part(6), part(7));
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

QDateTime to_datetime(const QString& text) {
    QDateTime moment = read_datetime(text);
    if (!moment.isValid()) {
        refuse(text, u"a date"_s);
    }
    return moment;
}

QDateTime to_datetime(const QVariant& value) {
    return to_datetime(value.toString());
}
