// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Makes the database that `connection_string` names when its file is missing or holds no table
/// yet: schema, first operator and all delivered rows in one transaction, so that a start killed
/// half-way leaves nothing behind. Any other file is left as it is, readable or not. Throws
/// DataError when the database cannot be made.
void ensure_database(const QString& connection_string);
