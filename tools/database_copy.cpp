// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/database_copy.h"

#include "platform/data_error.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/office_database.h"
#include "tools/texts.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

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
            throw failure(texts::tr("%1: is damaged: %2").arg(file, faults.first()));
        }
        require_office(*copy, file, office_use::reading);
    } catch (const DataError& error) {
        // Nobody else touches the copy: what is locked or damaged is the database.
        const bool of_the_copy =
            error.kind() == DataError::Kind::disk || error.kind() == DataError::Kind::cannot_open;
        throw failure(describe(error, of_the_copy ? place : file));
    }
}
