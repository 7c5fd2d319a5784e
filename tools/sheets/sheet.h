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

/// What a file of separated values holds.
struct sheet {
    QList<sheet_line> lines; ///< the empty ones are left out
    bool is_guessed = false; ///< it is not UTF-8 and bears no mark, and was taken for GB18030
};

/// Reads the content of a file that reports call `path`: in `charset` or, when that is empty,
/// UTF-8, UTF-16 with its mark, or GB18030; commas, semicolons or tabs, whichever the first line
/// has most of. Throws failure when it cannot be read.
[[nodiscard]] sheet read_sheet(const QByteArray& content, const QString& path,
                               const QString& charset);
