// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/bound_statement.h"
#include "tools/old_format/losses.h"
#include "tools/old_format/values.h"

#include <QJsonArray>
#include <QSet>
#include <QStringList>

#include <optional>

namespace old_format {

/// A table of a fresh database as the rows of the old one's take the place of its own.
class table_filler {
public:
    /// `old_columns` are matched by name without regard to case. The rows go into the table
    /// `target`, which has the columns of `table`, one of all_tables().
    table_filler(physical_database& database, losses& lost, const table_description& table,
                 const QString& target, const QStringList& old_columns);

    /// Puts a row in, or tells why not. Throws DataError.
    void take(const QJsonArray& row);

    [[nodiscard]] qint64 rows_read() const { return read_; }
    [[nodiscard]] qint64 rows_written() const { return written_; }

private:
    struct filled_column {
        table_column ours;
        qsizetype source = -1; ///< where it stands in an old row; negative for nowhere
    };

    /// Null where the old table has no such column.
    [[nodiscard]] static QJsonValue old_value(const QJsonArray& row, const filled_column& wanted);
    /// Why the row cannot be carried; empty when it can.
    [[nodiscard]] QString objection(const QList<carried>& values, qint64 number) const;
    /// The number that a report names a row by: its key, however that is written, or how many have
    /// been read.
    [[nodiscard]] qint64 number_of(const QJsonArray& row, const QList<carried>& values) const;
    [[nodiscard]] QVariantList accounted(const QList<carried>& values, qint64 number);

    losses& lost_;
    const table_description& table_;
    QList<filled_column> columns_;
    std::optional<bound_statement> insertion_;
    QSet<qint64> numbers_;
    qint64 read_ = 0;
    qint64 written_ = 0;
};

} // namespace old_format
