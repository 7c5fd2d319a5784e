// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/office_database.h"

#include "data/schema.h"
#include "data/schema_steps.h"
#include "platform/data_error.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/texts.h"

using namespace Qt::StringLiterals;

namespace {

/// Those of the first version, which every later one has too.
QStringList first_tables() {
    const auto first = open_database({}, physical_database::open_mode::memory);
    run_schema_step(*first, 1);
    return first->table_names();
}

void require_tables(physical_database& database, const QString& file) {
    const QStringList there = database.table_names();
    QStringList missing;
    for (const QString& table : first_tables()) {
        if (!there.contains(table, Qt::CaseInsensitive)) {
            missing.append(table);
        }
    }
    if (!missing.isEmpty()) {
        throw failure(texts::tr("%1: is no database of this system: it has no table %2")
                          .arg(file, some_of(missing)));
    }
}

} // namespace

std::unique_ptr<physical_database> open_office(const QString& file, office_use wanted,
                                               int lock_wait) {
    using enum physical_database::open_mode;
    auto database =
        open_database(file, wanted == office_use::reading ? read_only : existing, lock_wait);
    require_office(*database, file, wanted);
    return database;
}

void require_office(physical_database& database, const QString& file, office_use wanted) {
    require_tables(database, file);
    const int version = schema_version_of(database);
    const int newest = newest_schema_version();
    if (version > newest) {
        throw DataError(DataError::Kind::newer_version, file);
    }
    if (version == newest || wanted == office_use::upgrading) {
        return;
    }
    if (wanted == office_use::writing) {
        throw failure(
            texts::tr(
                "%1: is of an older version, %2 and not %3; upgrade it first (see smsdb upgrade --help)")
                .arg(file, QString::number(version), QString::number(newest)));
    }
    complain(texts::tr("%1: is of an older version, %2 and not %3 (see smsdb upgrade --help)")
                 .arg(file, QString::number(version), QString::number(newest)));
}
