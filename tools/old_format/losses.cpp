// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/losses.h"

#include "tools/console.h"
#include "tools/texts.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

/// "3, 7-9" for 9, 7, 3, 8.
QString ranges(QList<qint64> numbers) {
    std::sort(numbers.begin(), numbers.end());
    QStringList parts;
    for (qsizetype first = 0; first < numbers.size();) {
        qsizetype last = first;
        while (last + 1 < numbers.size() && numbers.at(last + 1) - numbers.at(last) <= 1) {
            ++last;
        }
        const QString from = QString::number(numbers.at(first));
        const QString to = QString::number(numbers.at(last));
        parts.append(from == to ? from : u"%1-%2"_s.arg(from, to));
        first = last + 1;
    }
    return parts.join(u", "_s);
}

} // namespace

void losses::add(const QString& what, const QString& reason, qint64 row) {
    rows_[{what, reason}].append(row);
}

void losses::add(const QString& what, const QString& reason) {
    rows_.insert({what, reason}, {});
}

QString losses::lines() const {
    QString text;
    for (auto entry = rows_.cbegin(); entry != rows_.cend(); ++entry) {
        const auto& [what, reason] = entry.key();
        const QString rows = entry->isEmpty() ? QString() : u" "_s + ranges(*entry);
        text += harmless(texts::tr("not carried: %1%2: %3").arg(what, rows, reason)) + u'\n';
    }
    return text;
}

} // namespace old_format
