// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <stdexcept>

/// The one exception of the data-access layer. `kind` lets the shell choose its words; `detail` is
/// the engine's own text.
class DataError : public std::runtime_error {
public:
    enum class Kind {
        missing_file,   ///< the data source names no file
        cannot_open,    ///< the file is there but cannot be read
        not_a_database, ///< the file is no database or is damaged
        old_format,     ///< the file is a database of the old format
        newer_version,  ///< a newer version of this system has made or changed the database
        locked,         ///< somebody else kept the file longer than the waiting time
        disk,           ///< the disk is full, or reading or writing failed
        statement,      ///< the engine refused a statement
        text_literal,   ///< a text holds a character that no statement can carry
        duplicate_key,  ///< a keyed collection holds the key already
        conversion,     ///< a value is not of the wanted type or out of its range
        cursor,         ///< a record set is closed or has no current row
        criterion,      ///< a find criterion or a sort order cannot be read
    };

    DataError(Kind kind, const QString& detail);

    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    [[nodiscard]] const QString& detail() const noexcept { return detail_; }

private:
    Kind kind_;
    QString detail_;
};
