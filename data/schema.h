// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The number of the schema that is made here, which a file holds as its `user_version`. A higher
/// one is that of a newer program.
inline constexpr int schema_version = 0;

/// Makes the database of a fresh office at `path`: schema, first operator and all delivered rows in
/// one transaction, so that being killed half-way leaves nothing behind. A file that holds a table
/// is left as it is. Throws DataError when the database cannot be made.
void make_database(const QString& path);

/// Makes the database that `connection_string` names when its file is missing or holds no table
/// yet. Any other file is left as it is, readable or not. Throws DataError as make_database does.
void ensure_database(const QString& connection_string);
