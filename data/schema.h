// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class physical_database;

/// Makes the database of a fresh office at `path`: schema, first operator and all delivered rows in
/// one transaction, so that being killed half-way leaves nothing behind. A file that holds a table
/// is left as it is. Throws DataError when the database cannot be made.
void make_database(const QString& path);

/// Makes everything of a fresh office in an empty database. Throws DataError.
void fill_database(physical_database& database);

/// The version of the schema that a database of this system has; those made before there were
/// versions count as 1. Throws DataError.
[[nodiscard]] int schema_version_of(physical_database& database);

/// Runs the steps of the schema that the database at `path` lacks, each in a transaction of its
/// own, once it is kept as keep_before_upgrade says. Returns the version that it had. Throws
/// DataError: newer_version when it is too new for this program, and when it cannot be read or
/// written.
int upgrade_database(const QString& path);

/// Copies the database at `path`, open as `database` and of an older version, to
/// "PATH-before-step-N", where N is the first step that it lacks; of several such copies the newest
/// is kept. Returns where it is; for a link that is beside its end. Throws DataError.
QString keep_before_upgrade(physical_database& database, const QString& path);

/// Runs the steps that the database lacks, in the transaction that is open. Throws DataError.
void run_missing_steps(physical_database& database);

/// Makes the database that `connection_string` names when its file is missing or holds no table
/// yet, and upgrades an older one. A file that cannot be read is left for its first user to report.
/// Throws DataError as make_database and upgrade_database do.
void ensure_database(const QString& connection_string);
