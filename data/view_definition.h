// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeaders.h"

/// The column holds passwords: whoever may write the definitions may not read them by it.
[[nodiscard]] bool is_secret(const QString& column_key);

/// Loads the definition of a view number; a number without one loads no columns, and a column of
/// passwords is left out of every one. Throws DataError.
void load_view(spListHeaders& headers, const QString& connection_string, const QString& view_no);

/// Writes the definition back, or writes a new one when the view number has none yet: whole or not
/// at all. `CondValue2` stays as it stands in the table. Throws DataError, also when a column of an
/// existing view has no row of its own.
void save_view(const spListHeaders& headers, const QString& connection_string,
               const QString& view_no);
