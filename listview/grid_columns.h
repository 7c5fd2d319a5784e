// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class data_grid;
class spListHeaders;

/// Rebuilds the grid's columns from the view definition; passwords stay hidden in any case.
void apply_view(const spListHeaders& headers, data_grid& grid);

/// Takes over the widths that the grid's columns have been given; a hidden one keeps its own.
void take_widths(spListHeaders& headers, const data_grid& grid);
