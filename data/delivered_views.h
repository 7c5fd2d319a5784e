// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class SqliteDatabase;

/// Writes the delivered definition of every view into `viewdef` and `viewitems`.
void write_delivered_views(SqliteDatabase& database);
