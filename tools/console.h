// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class DataError;

/// Writes a text to standard output.
void print(const QString& text);

/// Writes out what was printed. Throws failure when it cannot be: whoever does not see a report is
/// not to rely on what was done.
void flush_output();

/// How every command ends that changes something: tells what is done, and only when that is out
/// makes it final with `commit`. Throws failure when it cannot be told, and what `commit` throws,
/// after saying that what was told is not done.
void conclude(const QString& report, const std::function<void()>& commit);

/// Writes one line to standard error, after the program's name.
void complain(const QString& what);

/// What went wrong with a file, in a line.
[[nodiscard]] QString describe(const DataError& error, const QString& file);

/// Throws failure when no texts of that --charset can be read; none is the usual one.
void refuse_charset(const QString& charset);

/// The first few of a long list, as a text.
[[nodiscard]] QString some_of(const QStringList& items);

/// A text from a file as a report shows it: between quotes, a long one cut.
[[nodiscard]] QString shown(const QString& text);

/// The text with blanks before it, or behind it where the width is negative, until it takes that
/// many places of a terminal, on which a Chinese letter takes two.
[[nodiscard]] QString padded(const QString& text, int width);

/// The text as one line, without characters that would steer a terminal.
[[nodiscard]] QString harmless(QString text);
