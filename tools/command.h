// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>

#include <stdexcept>

class QCommandLineParser;

/// What the program's exit status says.
namespace exit_status {
inline constexpr int clean = 0;
inline constexpr int findings = 1; ///< `check` found something, an import something to report
inline constexpr int unusable = 2; ///< nothing was done: wrong usage, or a file cannot be used
} // namespace exit_status

/// Why a command gives up, as the operator is to read it; `what` is UTF-8.
class failure : public std::runtime_error {
public:
    explicit failure(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// A command as the table in main holds it.
struct command {
    QString name;
    QString summary; ///< its line in `smsdb --help`; none for what only this program itself runs
    QString help;    ///< the whole text of `smsdb NAME --help`
    qsizetype operands = 1; ///< how many; the first is a file
    QList<QCommandLineOption> options;
    /// Does the work and returns the exit status; throws failure, or DataError about the file that
    /// is the first operand.
    int (*run)(const QCommandLineParser& arguments) = nullptr;
};

[[nodiscard]] command check_command();
[[nodiscard]] command tidy_command();
[[nodiscard]] command upgrade_command();
[[nodiscard]] command create_command();
[[nodiscard]] command backup_command();
[[nodiscard]] command restore_command();
[[nodiscard]] command archive_command();
[[nodiscard]] command renumber_command();
[[nodiscard]] command grant_command();
