// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/physical_database.h"

#include <memory>

/// Physical connections kept per connection string, so that opening and closing a Connection is
/// cheap. For the user-interface thread alone.
namespace connection_pool {

/// A connection of the caller's own until the last copy of the pointer goes; an unfinished
/// transaction is then rolled back. Throws DataError as open_database does.
[[nodiscard]] std::shared_ptr<physical_database> acquire(const QString& connection_string);

/// Folds the logs of the idle connections into their files. Happens by itself a moment after the
/// last write, so that the file alone is whole when somebody copies or replaces it.
void fold_logs();

/// Closes every idle connection, which folds the logs too.
void clear();

} // namespace connection_pool
