// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/csv.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The wide forms begin a formula too where Chinese is written.
constexpr QStringView begins_a_formula = u"=+-@\t\r\n＝＋－＠'";

QString field(const QString& text) {
    const bool guarded = !text.isEmpty() && begins_a_formula.contains(text.front());
    QString written = guarded ? u'\'' + text : text;
    // Also what other countries' spreadsheets would take for the end of a field.
    const bool quoted = std::any_of(written.cbegin(), written.cend(),
                                    [](QChar c) { return QStringView(u",;\t\"\r\n").contains(c); });
    return quoted ? u'"' + written.replace(u'"', u"\"\""_s) + u'"' : written;
}

} // namespace

QByteArray csv::line(const QStringList& fields) {
    QStringList written;
    std::transform(fields.cbegin(), fields.cend(), std::back_inserter(written), field);
    return written.join(u',').toUtf8() + "\r\n";
}
