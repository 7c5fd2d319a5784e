// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class physical_database;

namespace old_format {
class losses;
}

/// The definitions of lists that an old database holds. They wait in tables of their own until it
/// is known which can be used.
namespace old_format::list_definitions {

/// Whether the rows of a table are such definitions.
[[nodiscard]] bool hold(const QString& table);

/// The waiting place for the rows of `table`.
[[nodiscard]] QString waiting_place(const QString& table);

/// Makes both waiting places, empty.
void make_waiting_places(physical_database& database);

/// Puts those definitions in the delivered ones' place that define a list of this system and have
/// a column at least; the others are lost, and so is a column of passwords. How many rows of
/// `table` are then the old ones' is told by `carried_rows`.
void put_in_place(physical_database& database, losses& lost);

/// After put_in_place: how many rows of `table` come from the old database.
[[nodiscard]] qint64 carried_rows(physical_database& database, const QString& table);

} // namespace old_format::list_definitions
