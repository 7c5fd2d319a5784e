// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "platform/database/transaction.h"

/// The numbers of rows that nothing points at, which may close up from 1 once their owner asks for
/// it. While a client runs it may hold one of them, so nobody else may have the file open.
namespace closing_up {

/// Nobody else has the file open from here until the connection closes, and a transaction is open.
/// Throws failure when somebody has.
[[nodiscard]] transaction keep_to_oneself(physical_database& database, const QString& file);

/// Numbers the rows of every such table from 1 in their order, and new rows on from there. Returns
/// "table number" for each, the next one.
[[nodiscard]] QStringList close_up(physical_database& database);

/// Gives the room of what was taken out back to the disk; where there is no room to do it, the file
/// stays as large as it is. No transaction may be open.
void shrink(physical_database& database);

} // namespace closing_up
