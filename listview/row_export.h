// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class data_grid;
class QWidget;

/// The marked row as one line, the columns that are seen parted by tabs; line breaks and tabs in a
/// text become blanks.
[[nodiscard]] QString marked_row_as_line(const data_grid& grid);

/// Asks for a file and writes into it, for a spreadsheet, what the grid shows: its columns from the
/// left under their headings, its rows in their order. Returns the file; empty when the operator
/// gave up or it could not be written, which a box has told. What was there before is then still
/// there.
[[nodiscard]] QString export_rows(const data_grid& grid, const QString& name, QWidget* parent);
