// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/physical_database.h"

/// What a command does with the database of an office. One of an older version is enough to read,
/// which is told on standard error; to write into it, it has to be upgraded first.
enum class office_use { reading, writing, upgrading };

/// Opens the database in `file`; `lock_wait` as in open_database. Throws failure when it holds not
/// all of this system's tables, is a newer program's, or too old for this use; DataError when it
/// cannot be read.
[[nodiscard]] std::unique_ptr<physical_database>
open_office(const QString& file, office_use wanted,
            int lock_wait = physical_database::lock_wait_ms);

/// The same for a database that is open already; reports call it `file`.
void require_office(physical_database& database, const QString& file, office_use wanted);
