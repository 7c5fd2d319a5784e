// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/database_copy.h"

#include "data/schema_steps.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Those of the first version, which every later one has too.
const QStringList& tables() {
    static const QStringList names{u"smsmodels"_s, u"cusclass"_s, u"customer"_s,  u"parameters"_s,
                                   u"cgroup"_s,    u"sendsms"_s,  u"recvedsms"_s, u"gsendsms"_s,
                                   u"users"_s,     u"rights"_s,   u"Functions"_s, u"viewdef"_s,
                                   u"viewitems"_s};
    return names;
}

void require_ours(physical_database& database, const QString& file) {
    QStringList missing;
    for (const QString& table : tables()) {
        if (database.number(
                u"SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = '%1' COLLATE NOCASE"_s
                    .arg(table)) == 0) {
            missing.append(table);
        }
    }
    if (!missing.isEmpty()) {
        throw failure(
            u"%1: is no database of this system: it has no table %2"_s.arg(file, some_of(missing)));
    }
    if (database.schema_version() > newest_schema_version()) {
        throw failure(u"%1: was made by a newer version of this system"_s.arg(file));
    }
}

void fill(physical_database& source, const QString& path) {
    const auto copy = open_database(path, physical_database::open_mode::create);
    source.copy_to(*copy);
    // Then it needs no log beside it, also on a medium that cannot be written.
    copy->execute(u"PRAGMA journal_mode=DELETE"_s);
}

} // namespace

void copy_database(const QString& file, const QString& path, const QString& place) {
    const auto source = open_database(file, physical_database::open_mode::read_only);
    try {
        fill(*source, path);
        const auto copy = open_database(path, physical_database::open_mode::read_only);
        const QStringList faults = integrity_faults(*copy);
        if (!faults.isEmpty()) {
            throw failure(u"%1: is damaged: %2"_s.arg(file, faults.first()));
        }
        require_ours(*copy, file);
    } catch (const DataError& error) {
        // Nobody else touches the copy: what is locked or damaged is the database.
        const bool of_the_copy =
            error.kind() == DataError::Kind::disk || error.kind() == DataError::Kind::cannot_open;
        throw failure(describe(error, of_the_copy ? place : file));
    }
}
