// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/dialled_number.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString dialled_number(const QString& written) {
    static const QRegularExpression grouping(uR"([\s\p{Z}\p{Cf}\p{Pd}\p{Ps}\p{Pe}−])"_s);
    static const QRegularExpression own_country(u"^(\\+|00)?86(?=1[0-9]{10}$)"_s);
    static const QRegularExpression number(u"^\\+?[0-9]{3,20}$"_s);
    const QString bare =
        written.normalized(QString::NormalizationForm_KC).remove(grouping).remove(own_country);
    return number.match(bare).hasMatch() ? bare : QString();
}
