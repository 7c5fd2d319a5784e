// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/stored_numbers.h"

#include "data/dialled_number.h"
#include "platform/database/physical_database.h"

using namespace Qt::StringLiterals;

const QList<number_column>& number_columns() {
    static const QList<number_column> all{
        {u"customer"_s,
         u"SELECT cid, mobile FROM customer WHERE trim(mobile) <> '' ORDER BY cid"_s},
        {u"sendsms"_s,
         u"SELECT smsid, mobile FROM sendsms WHERE sendisok = 0 AND trim(mobile) <> '' ORDER BY smsid"_s},
        {u"recvedsms"_s,
         u"SELECT smsrid, mobile FROM recvedsms WHERE trim(mobile) <> '' ORDER BY smsrid"_s},
    };
    return all;
}

QList<stored_number> untidy_numbers(physical_database& database, const number_column& column) {
    QList<stored_number> found;
    for (const QStringList& row : database.texts(column.query)) {
        const QString dialled = dialled_number(row.at(1));
        if (dialled != row.at(1)) {
            found.append({row.at(0).toLongLong(), row.at(1), dialled});
        }
    }
    return found;
}
