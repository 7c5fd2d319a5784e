// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/connection_string.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString data_source(const QString& connection_string) {
    const auto key = "Data Source="_L1;
    const qsizetype start = connection_string.indexOf(key, 0, Qt::CaseInsensitive);
    if (start < 0) {
        return {};
    }
    QString path = connection_string.mid(start + key.size());
    if (path.endsWith(u';')) {
        path.chop(1);
    }
    const qsizetype backslash = path.lastIndexOf(u'\\');
    if (backslash >= 0) {
        path[backslash] = QDir::separator();
    }
    return path;
}
