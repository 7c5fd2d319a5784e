// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class physical_database;

/// Writes the delivered definitions into `viewdef` and `viewitems` of those views that have none:
/// what an office has made of a list stays.
void bring_in_delivered_views(physical_database& database);
