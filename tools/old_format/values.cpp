// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/values.h"

#include "data/fmtdatetime.h"
#include "platform/conversion.h"
#include "platform/data_error.h"
#include "tools/console.h"
#include "tools/texts.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

/// The ways in which a Chinese desktop writes a moment, as the ways that this system reads.
std::optional<wall_time> read_free_moment(const QString& written) {
    constexpr int half_a_day = 43200;
    static const QRegularExpression half_day(u"(上午|下午|AM|PM)"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression between(u"[年月.]"_s);
    QString text = written.normalized(QString::NormalizationForm_KC); // wide digits and colons
    const QString half = half_day.match(text).captured().toUpper();
    text.remove(half_day).replace(between, u"-"_s).replace(u'日', u' ');
    std::optional<wall_time> moment = read_wall_time(text.simplified());
    const int hour = moment ? moment->time.hour() : 0;
    if (moment && (half == u"下午" || half == u"PM" ? hour < 12 : !half.isEmpty() && hour == 12)) {
        moment->time = moment->time.addSecs(half_a_day); // past midnight it begins again
    }
    return moment;
}

carried carry_truth(const QJsonValue& value, int yes) {
    static const QStringList words{u"yes"_s, u"on"_s, u"是"_s, u"真"_s};
    static const QStringList denials{u"no"_s, u"off"_s, u"否"_s, u"假"_s};
    const QString word = text_of(value).trimmed().toLower();
    if (words.contains(word) || denials.contains(word)) {
        return {words.contains(word) ? yes : 0, {}};
    }
    try {
        return {to_boolean(text_of(value)) ? yes : 0, {}};
    } catch (const DataError&) {
        return {0, texts::tr("%1 is neither yes nor no").arg(shown(text_of(value)))};
    }
}

carried carry_number(const QJsonValue& value) {
    try {
        return {to_int16(text_of(value)), {}};
    } catch (const DataError&) {
        return {0,
                texts::tr("%1 is no whole number from -32768 to 32767").arg(shown(text_of(value)))};
    }
}

carried carry_moment(const QJsonValue& value) {
    const QString text = text_of(value);
    if (const auto moment = read_free_moment(text)) {
        // Which moment that is here does not matter: a clock may have skipped it that night.
        return {fmtdatetime(QDateTime(moment->date, moment->time, Qt::UTC)), {}};
    }
    return {{}, text.trimmed().isEmpty() ? QString() : texts::tr("%1 is no date").arg(shown(text))};
}

carried carry_text(const QJsonValue& value) {
    QString text = text_of(value);
    text.replace(QChar::Null, QChar::ReplacementCharacter);
    const bool is_whole = !text.contains(QChar::ReplacementCharacter);
    return {text, is_whole ? QString() : texts::tr("some of its characters cannot be read")};
}

} // namespace

QString text_of(const QJsonValue& value) {
    if (value.isBool()) {
        return value.toBool() ? u"-1"_s : u"0"_s;
    }
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

carried carry(const QJsonValue& value, column_kind wanted) {
    if (value.isNull()) {
        return {};
    }
    if (value.isObject()) {
        const bool takes_texts = wanted == column_kind::text || wanted == column_kind::moment;
        return {takes_texts ? QVariant() : QVariant(0),
                wanted == column_kind::text
                    ? texts::tr("is damaged there, an older copy may still have it")
                    : texts::tr("cannot be read")};
    }
    switch (wanted) {
    case column_kind::key:
    case column_kind::number:
        return carry_number(value);
    case column_kind::flag:
        return carry_truth(value, -1);
    case column_kind::mark:
        return carry_truth(value, 1);
    case column_kind::moment:
        return carry_moment(value);
    case column_kind::text:
        break;
    }
    return carry_text(value);
}

} // namespace old_format
