// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/closing_up.h"

#include "data/tables.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/texts.h"

using namespace Qt::StringLiterals;

namespace {

/// Numbers the rows of the table from 1 in their order; returns the next number.
qint64 close_up_table(physical_database& database, const table_description& table) {
    // Below every key first, so that no new key meets an old one.
    database.execute(
        u"UPDATE %1 SET %2 = closed.number - 1000000000000 FROM (SELECT %2 AS old, row_number() OVER (ORDER BY %2) AS number FROM %1) AS closed WHERE %2 = closed.old"_s
            .arg(table.name, table.key()));
    database.execute(u"UPDATE %1 SET %2 = %2 + 1000000000000"_s.arg(table.name, table.key()));
    database.execute(
        u"UPDATE sqlite_sequence SET seq = (SELECT count(*) FROM %1) WHERE name = '%1'"_s.arg(
            table.name));
    return database.number(u"SELECT count(*) + 1 FROM %1"_s.arg(table.name));
}

} // namespace

transaction closing_up::keep_to_oneself(physical_database& database, const QString& file) {
    database.execute(u"PRAGMA locking_mode=EXCLUSIVE"_s);
    try {
        // A file that cannot be written is refused before anything is done.
        database.execute(u"DELETE FROM sendsms WHERE 0"_s);
        return transaction(database, physical_database::purpose::alone);
    } catch (const DataError& error) {
        if (error.kind() == DataError::Kind::locked) {
            throw failure(
                texts::tr("%1: is open in a client or another program; close it first").arg(file));
        }
        throw;
    }
}

QStringList closing_up::close_up(physical_database& database) {
    QStringList next;
    for (const table_description& table : all_tables()) {
        if (table.closes_up) {
            next.append(u"%1 %2"_s.arg(table.name).arg(close_up_table(database, table)));
        }
    }
    return next;
}

void closing_up::shrink(physical_database& database) {
    try {
        database.execute(u"VACUUM"_s);
        database.rest();
    } catch (const DataError& error) {
        complain(texts::tr("the file stays as large as it is: %1").arg(error.detail()));
    }
}
