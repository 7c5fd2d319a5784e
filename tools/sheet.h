// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

/// A line of a table that a spreadsheet has written; quoted line breaks make it several of the
/// file.
struct sheet_line {
    qint64 number = 0; ///< of the first of them, from 1
    QStringList fields;
};

/// Reads a file of separated values: UTF-8, UTF-16 with its mark, or GB18030; commas, semicolons or
/// tabs, whichever the first line has most of. Empty lines are left out. Throws failure when it
/// cannot be read.
[[nodiscard]] QList<sheet_line> read_sheet(const QString& path);
