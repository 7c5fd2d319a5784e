// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/display_format.h"

#include "platform/conversion.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto date_letters = "ymdhsYMDHS"_L1;
constexpr auto number_letters = "0#.,"_L1;
constexpr auto date_marks = "/-: "_L1;
constexpr int most_decimals_shown = 15; // a double tells no more apart

/// Splits at ";" that no backslash precedes.
QList<QStringView> split_sections(QStringView format) {
    QList<QStringView> sections;
    qsizetype start = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'\\') {
            ++i;
        } else if (format[i] == u';') {
            sections.append(format.sliced(start, i - start));
            start = i + 1;
        }
    }
    sections.append(format.sliced(start));
    return sections;
}

} // namespace

display_format::display_format(const QString& format) {
    if (format.isEmpty()) {
        return;
    }
    for (const QStringView text : split_sections(format)) {
        sections_.push_back(parse_section(text));
    }
}

display_format::section display_format::parse_section(QStringView text) {
    section parsed;
    parsed.kind = Kind::literal;
    QString placeholder;
    bool placeholder_ended = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool starts_date = date_letters.contains(c);
        const bool starts_number = number_letters.contains(c);
        const bool goes_on =
            (parsed.kind == Kind::date && (starts_date || date_marks.contains(c))) ||
            (parsed.kind == Kind::number && starts_number);
        const bool starts =
            parsed.kind == Kind::literal && (starts_date || starts_number || c == u'@');
        if (c != u'\\' && !placeholder_ended && (goes_on || starts)) {
            placeholder += c;
            if (starts) {
                parsed.kind = starts_date ? Kind::date : starts_number ? Kind::number : Kind::text;
            }
            continue;
        }
        placeholder_ended = parsed.kind != Kind::literal;
        if (c == u'\\' && ++i == text.size()) {
            break;
        }
        (placeholder_ended ? parsed.after : parsed.before) += text[i];
    }
    if (parsed.kind == Kind::date) {
        parsed.date = to_toolkit_date(placeholder);
    } else if (parsed.kind == Kind::number) {
        parse_number(placeholder, parsed);
    }
    return parsed;
}

QString display_format::to_toolkit_date(QStringView placeholder) {
    QString result;
    bool minutes = false; // "m" behind hours means minutes
    for (const QChar c : placeholder) {
        const QChar letter = c.toLower();
        if (letter == u'h') {
            minutes = true;
            result += u'H';
        } else if (letter == u'm' && !minutes) {
            result += u'M';
        } else {
            minutes = minutes && letter != u's';
            result += letter;
        }
    }
    return result;
}

void display_format::parse_number(QStringView placeholder, section& parsed) {
    const qsizetype point = placeholder.indexOf(u'.');
    const QStringView integer = point < 0 ? placeholder : placeholder.first(point);
    const QStringView decimals = point < 0 ? QStringView() : placeholder.sliced(point + 1);
    parsed.grouped = integer.contains(u',');
    parsed.least_integer_digits = static_cast<int>(qMin<qsizetype>(integer.count(u'0'), 20));
    parsed.least_decimals =
        static_cast<int>(qMin<qsizetype>(decimals.count(u'0'), most_decimals_shown));
    parsed.most_decimals = static_cast<int>(
        qMin<qsizetype>(decimals.count(u'0') + decimals.count(u'#'), most_decimals_shown));
}

QString display_format::apply(const QVariant& value) const {
    if (sections_.empty() || value.isNull()) {
        return value.toString();
    }
    bool is_number = false;
    const double number = value.toDouble(&is_number);
    is_number = is_number && std::isfinite(number); // the toolkit reads "inf" and "nan" as numbers
    const section& format = is_number ? section_for(number) : sections_.front();
    switch (format.kind) {
    case Kind::literal:
        return is_number ? format.before : value.toString();
    case Kind::text:
        return format.before + value.toString() + format.after;
    case Kind::date: {
        const QDateTime moment = read_datetime(value.toString());
        return moment.isValid() ? format.before + moment.toString(format.date) + format.after
                                : value.toString();
    }
    case Kind::number:
        return is_number ? format_number(format, number) : value.toString();
    }
    return value.toString();
}

QString display_format::format_number(const section& format, double number) {
    QLocale locale = QLocale::c();
    locale.setNumberOptions(format.grouped ? QLocale::DefaultNumberOptions
                                           : QLocale::OmitGroupSeparator);
    QString digits = locale.toString(std::abs(number), 'f', format.most_decimals);
    qsizetype integer_digits = format.most_decimals > 0 ? digits.indexOf(u'.') : digits.size();
    for (int spare = format.most_decimals - format.least_decimals;
         spare > 0 && digits.endsWith(u'0'); --spare) {
        digits.chop(1);
    }
    if (format.least_integer_digits == 0 && digits.startsWith(u'0')) {
        digits.remove(0, 1);
        --integer_digits;
    }
    for (; integer_digits < format.least_integer_digits; ++integer_digits) {
        digits.prepend(u'0');
    }
    const bool sign = number < 0 && digits.contains(QRegularExpression(u"[1-9]"_s));
    return (sign ? u"-"_s : QString()) + format.before + digits + format.after;
}

const display_format::section& display_format::section_for(double number) const {
    if (number < 0 && sections_.size() > 1) {
        return sections_[1];
    }
    if (number == 0 && sections_.size() > 2) {
        return sections_[2];
    }
    return sections_.front();
}
