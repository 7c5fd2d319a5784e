// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class physical_database;

/// The version of the schema that this program works with; step n leads to version n.
[[nodiscard]] int newest_schema_version();

/// Runs one step, from 1, on a database that has all before it, and notes it there. For use in a
/// transaction. Throws DataError.
void run_schema_step(physical_database& database, int number);
