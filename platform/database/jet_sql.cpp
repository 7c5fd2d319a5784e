// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/jet_sql.h"

namespace {

/// The character that ends what `opening` begins, or NUL when it begins nothing.
QChar closing_mark(QChar opening) {
    switch (opening.unicode()) {
    case u'\'':
    case u'"':
    case u'`':
    case u'#':
        return opening;
    case u'[':
        return u']';
    default:
        return {};
    }
}

} // namespace

QString translate_jet_sql(const QString& statement) {
    QString result = statement;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const QChar opening = result[i];
        const QChar closing = closing_mark(opening);
        if (closing.isNull()) {
            continue;
        }
        const qsizetype end = result.indexOf(closing, i + 1);
        if (end < 0) {
            break;
        }
        // A quote inside the marks would end the literal early: such a statement stays as it is and
        // fails.
        if (opening == u'#' && !QStringView(result).sliced(i, end - i).contains(u'\'')) {
            result[i] = u'\'';
            result[end] = u'\'';
        }
        i = end;
    }
    return result;
}
