// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"

#include "data/schema_steps.h"
#include "platform/data_error.h"
#include "platform/database/connection_string.h"
#include "platform/database/transaction.h"
#include "platform/durable_move.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

using open_mode = physical_database::open_mode;
using purpose = physical_database::purpose;

bool holds_a_table(physical_database& database) {
    return !database.table_names().isEmpty();
}

/// What a start finds in the file.
enum class content { nothing, older, fitting };

/// A file that a killed first start left has no table; one that cannot be read is somebody else's
/// to report, when it is used.
content content_of(const QString& path) {
    if (!QFileInfo::exists(path)) {
        return content::nothing;
    }
    int version = 0;
    try {
        // Not waited for: whoever is at work in the file has made its tables.
        const auto database = open_database(path, open_mode::existing, 0);
        if (!holds_a_table(*database)) {
            return content::nothing;
        }
        version = schema_version_of(*database);
    } catch (const DataError&) {
        return content::fitting;
    }
    return version == newest_schema_version() ? content::fitting : content::older;
}

} // namespace

void fill_database(physical_database& database) {
    for (int step = 1; step <= newest_schema_version(); ++step) {
        run_schema_step(database, step);
    }
}

void make_database(const QString& path) {
    const auto database = open_database(path, open_mode::create);
    transaction making(*database, purpose::alone);
    // Two first starts at once: the second finds the tables when its turn comes.
    if (!holds_a_table(*database)) {
        fill_database(*database);
    }
    making.commit();
}

int schema_version_of(physical_database& database) {
    return qMax(database.schema_version(), 1);
}

QString keep_before_upgrade(physical_database& database, const QString& path) {
    const QFileInfo file(QFileInfo(path).canonicalFilePath());
    const QString name = file.fileName() + u"-before-step-"_s;
    QDir folder = file.dir();
    QString place = folder.filePath(name + QString::number(schema_version_of(database) + 1));
    const QString part = place + u".part"_s;
    QFile::remove(part);
    const auto nothing_half_made = qScopeGuard([&part] { QFile::remove(part); });
    {
        const auto copy = open_database(part, open_mode::create);
        database.copy_to(*copy);
    }
    const std::error_code error =
        move_durably(QFileInfo(part).filesystemFilePath(), QFileInfo(place).filesystemFilePath(),
                     existing::replace);
    if (error) {
        throw DataError(DataError::Kind::disk, qt_error_string(error.value()));
    }
    for (const QString& other : folder.entryList({name + u'*'}, QDir::Files)) {
        if (folder.filePath(other) != place) {
            folder.remove(other);
        }
    }
    return place;
}

void run_missing_steps(physical_database& database) {
    for (int step = schema_version_of(database) + 1; step <= newest_schema_version(); ++step) {
        run_schema_step(database, step);
    }
}

int upgrade_database(const QString& path) {
    const auto database = open_database(path);
    const int found = schema_version_of(*database);
    if (found > newest_schema_version()) {
        throw DataError(DataError::Kind::newer_version, path);
    }
    if (found < newest_schema_version()) {
        keep_before_upgrade(*database, path);
    }
    for (int step = found + 1; step <= newest_schema_version(); ++step) {
        transaction stepping(*database);
        if (schema_version_of(*database) < step) { // another start may have been quicker
            run_schema_step(*database, step);
        }
        stepping.commit();
    }
    return found;
}

void ensure_database(const QString& connection_string) {
    const QString path = data_source(connection_string);
    switch (content_of(path)) {
    case content::nothing:
        make_database(path);
        break;
    case content::older:
        upgrade_database(path);
        break;
    case content::fitting:
        break;
    }
}
