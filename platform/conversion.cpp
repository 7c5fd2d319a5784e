// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/conversion.h"

#include "platform/data_error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QVariant& value, const QString& wanted) {
    throw DataError(DataError::Kind::conversion,
                    u"\"%1\" is not %2"_s.arg(value.toString().left(40), wanted));
}

/// What a pattern's \s stands for.
bool is_blank(QChar c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

void skip(QStringView& rest, bool (*skipped)(QChar)) {
    while (!rest.isEmpty() && skipped(rest.front())) {
        rest = rest.sliced(1);
    }
}

bool take(QStringView& rest, char16_t mark) {
    const bool there = rest.startsWith(mark);
    rest = rest.sliced(there ? 1 : 0);
    return there;
}

/// Between `least` and `most` digits from the front; nothing when they are not there.
std::optional<int> take_number(QStringView& rest, qsizetype least, qsizetype most) {
    int number = 0;
    qsizetype count = 0;
    while (count < qMin(most, rest.size()) && rest[count] >= u'0' && rest[count] <= u'9') {
        number = number * 10 + (rest[count].unicode() - u'0');
        ++count;
    }
    rest = rest.sliced(count);
    return count < least ? std::nullopt : std::optional(number);
}

/// A mark and one or two digits; -1, which no date and no time has, when they are not there.
int take_part(QStringView& rest, char16_t mark) {
    return take(rest, mark) ? take_number(rest, 1, 2).value_or(-1) : -1;
}

/// Hours, minutes and perhaps seconds; an invalid time when they are not there.
QTime take_time(QStringView& rest) {
    const int hour = take_number(rest, 1, 2).value_or(-1);
    const int minute = take_part(rest, u':');
    const int second = rest.startsWith(u':') ? take_part(rest, u':') : 0;
    return {hour, minute, second};
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

// By hand and not by a regular expression: a search reads every row's moment.
std::optional<wall_time> read_wall_time(QStringView text) {
    skip(text, is_blank);
    const int year = take_number(text, 4, 4).value_or(0); // there is no such year
    const char16_t mark = text.startsWith(u'-') ? u'-' : u'/';
    const int month = take_part(text, mark);
    const int day = take_part(text, mark);
    const QDate date(year, month, day);
    QTime time(0, 0);
    if (text.startsWith(u' ') || text.startsWith(u'T')) {
        QStringView rest = text;
        skip(rest, [](QChar c) { return c == u' ' || c == u'T'; });
        if (!rest.isEmpty() && !is_blank(rest.front())) {
            time = take_time(rest);
            text = rest;
        }
    }
    skip(text, is_blank);
    return text.isEmpty() && date.isValid() && time.isValid() ? std::optional(wall_time{date, time})
                                                              : std::nullopt;
}

QDateTime read_datetime(QStringView text) {
    const auto read = read_wall_time(text);
    return read ? QDateTime(read->date, read->time) : QDateTime();
}

QDateTime to_datetime(const QString& text) {
    QDateTime moment = read_datetime(text);
    if (!moment.isValid()) {
        refuse(text, u"a date"_s);
    }
    return moment;
}

QDateTime typed_datetime(const QString& text) {
    return to_datetime(text.normalized(QString::NormalizationForm_KC));
}

QDateTime to_datetime(const QVariant& value) {
    return to_datetime(value.toString());
}
