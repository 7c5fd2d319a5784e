// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/fmtdatetime.h"

using namespace Qt::StringLiterals;

QString fmtdatetime(const QDateTime& moment) {
    return moment.toString(u"yyyy/MM/dd HH:mm:ss"_s);
}

QString show_datetime(const QDateTime& moment) {
    return moment.toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

QDateTime system_clock() {
    return QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch());
}
