// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/data_error.h"

struct sqlite3;

/// What a result code of SQLite's, plain or extended, means here.
[[nodiscard]] DataError::Kind kind_of_sqlite_result(int result_code);

/// Throws what the connection says of its last operation.
[[noreturn]] void raise_sqlite_error(sqlite3* connection);
