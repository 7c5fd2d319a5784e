// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/strconn.h"

using namespace Qt::StringLiterals;

QString strconn;

QString make_strconn(const QString& directory) {
    return u"PROVIDER=Microsoft.Jet.OLEDB.3.51;Data Source="_s + directory + u"\\sms.old.mdb;"_s;
}
