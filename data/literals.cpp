// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/literals.h"

#include "data/fmtdatetime.h"
#include "platform/data_error.h"

using namespace Qt::StringLiterals;

bool is_writable(const QString& text) {
    return !text.contains(u'\'') && !text.contains(QChar::Null);
}

QString text_literal(const QString& text) {
    if (!is_writable(text)) {
        throw DataError(DataError::Kind::text_literal, u"the text holds a quote or a NUL"_s);
    }
    return u'\'' + text + u'\'';
}

QString int16_literal(qint16 number) {
    return QString::number(number);
}

QString literal(bool value) {
    return value ? u"-1"_s : u"0"_s;
}

QString literal(const QDateTime& moment) {
    return text_literal(fmtdatetime(moment));
}
