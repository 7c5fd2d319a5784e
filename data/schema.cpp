// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"

#include "data/delivered_views.h"
#include "data/schema_sql.h"
#include "platform/connection_string.h"
#include "platform/data_error.h"
#include "platform/sqlite_database.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool holds_a_table(SqliteDatabase& database) {
    return database.step(database.prepare(u"select 1 from sqlite_master"_s));
}

/// A file that a killed first start left has no table; one that cannot be read is somebody else's
/// to report, when it is used.
bool needs_tables(const QString& path) {
    if (!QFileInfo::exists(path)) {
        return true;
    }
    try {
        // Not waited for: whoever is at work in the file has made its tables.
        SqliteDatabase database(path, SqliteDatabase::Mode::existing, 0);
        return !holds_a_table(database);
    } catch (const DataError&) {
        return false;
    }
}

} // namespace

void make_database(const QString& path) {
    SqliteDatabase database(path, SqliteDatabase::Mode::create);
    database.execute_script("BEGIN EXCLUSIVE");
    // Two first starts at once: the second finds the tables when its turn comes.
    if (!holds_a_table(database)) {
        database.execute_script(schema_sql);
        write_delivered_views(database);
    }
    database.execute_script("COMMIT");
    database.execute_script("PRAGMA journal_mode=WAL");
}

void ensure_database(const QString& connection_string) {
    const QString path = data_source(connection_string);
    if (needs_tables(path)) {
        make_database(path);
    }
}
