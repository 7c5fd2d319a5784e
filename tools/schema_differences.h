// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class physical_database;

/// Where the schema of a database is another than a fresh one's, a line each.
struct schema_differences {
    QStringList findings;
    QStringList notes;       ///< what is there beside this system's
    bool is_complete = true; ///< every table, view and column is there and can be read
};

/// Compares the version, the tables, views and indexes, and the texts that define them. Throws
/// DataError when the database cannot be read.
[[nodiscard]] schema_differences compare_schemas(physical_database& database,
                                                 physical_database& fresh);
