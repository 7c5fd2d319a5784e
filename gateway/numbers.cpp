// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/numbers.h"

#include "gateway/wire.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

constexpr qsizetype shortest = 3;
constexpr qsizetype longest = 20;

bool is_digit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool fits(QStringView number, QStringView pattern) {
    const bool open_end = pattern.endsWith(u'*');
    const QStringView head = open_end ? pattern.chopped(1) : pattern;
    if (open_end ? number.size() < head.size() : number.size() != head.size()) {
        return false;
    }
    return std::equal(head.begin(), head.end(), number.begin(), [](QChar wanted, QChar found) {
        return wanted == found || (wanted == u'x' && is_digit(found));
    });
}

bool fits_any(QStringView number, const QStringList& patterns) {
    return std::any_of(patterns.begin(), patterns.end(),
                       [number](const QString& pattern) { return fits(number, pattern); });
}

/// What follows the "+" or "00" of an international number; empty for any other.
QStringView international_part(QStringView number) {
    if (number.startsWith(u'+')) {
        return number.sliced(1);
    }
    return number.startsWith(u"00") ? number.sliced(2) : QStringView();
}

/// The national form of what follows the country's own code.
QString national(const number_settings& rules, QStringView rest) {
    const bool as_it_stands = fits_any(rest, rules.mobiles) || fits_any(rest, rules.short_codes);
    return as_it_stands ? rest.toString() : rules.trunk_prefix + rest.toString();
}

} // namespace

QString bare_number(QStringView typed) {
    QString bare = typed.toString();
    return bare.removeIf([](QChar c) { return c.isSpace() || c == u'-'; });
}

bool is_number(QStringView text) {
    const QStringView digits = text.startsWith(u'+') ? text.sliced(1) : text;
    return digits.size() >= shortest && digits.size() <= longest &&
           std::all_of(digits.begin(), digits.end(), is_digit);
}

std::optional<QString> network_number(const number_settings& rules, QStringView typed) {
    const QString number = bare_number(typed);
    if (!is_number(number)) {
        return std::nullopt;
    }
    const QStringView abroad = international_part(number);
    if (!abroad.isEmpty()) {
        return abroad.size() < shortest ? std::nullopt : std::optional(u'+' + abroad.toString());
    }
    if (rules.country.isEmpty() || fits_any(number, rules.short_codes)) {
        return number;
    }
    const bool has_trunk = !rules.trunk_prefix.isEmpty() && number.startsWith(rules.trunk_prefix);
    return u'+' + rules.country + (has_trunk ? number.sliced(rules.trunk_prefix.size()) : number);
}

QString sender_field(const number_settings& rules, const QString& sender) {
    // The client drops two characters, whatever the length of the country's code.
    const QString home = rules.country.size() == 2 ? rules.country : u"00"_s;
    const QString number = bare_number(sender);
    QString shown = sender;
    if (is_number(number)) {
        const QStringView abroad = international_part(number);
        const QStringView digits = abroad.isEmpty() ? QStringView(number) : abroad;
        const bool at_home = !rules.country.isEmpty() && digits.startsWith(rules.country);
        const QStringView rest = digits.sliced(at_home ? rules.country.size() : 0);
        if (!abroad.isEmpty()) {
            shown = at_home ? national(rules, rest) : u"00"_s + abroad.toString();
        } else {
            // Some networks leave the sign away.
            shown = at_home && fits_any(rest, rules.mobiles) ? rest.toString() : number;
        }
    }
    const QString padding = shown.startsWith(u"00") ? u"00"_s : home;
    return padding + shown.left(max_sender_length - padding.size());
}

} // namespace gateway
