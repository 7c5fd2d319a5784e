// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/recordset.h"

class data_grid;
struct search_request;

/// The rows of a list in the grid that shows them. The record set's cursor stands on the marked
/// row, before and after everything that is done here.
class list_rows {
public:
    /// `key_column` is the field that tells the rows apart.
    list_rows(data_grid& grid, QString key_column);
    ~list_rows();
    Q_DISABLE_COPY_MOVE(list_rows)

    [[nodiscard]] qsizetype count() const { return rows_.RecordCount(); }
    /// Shows these rows instead of those before, in the same order; the marked row stays marked and
    /// where it is seen. Throws DataError when they cannot be sorted, and then shows the old ones.
    void show(Recordset rows);
    /// Marks the next row that matches, from the marked one on; false when there is none. Throws
    /// DataError for a criterion that cannot be read.
    [[nodiscard]] bool find(const search_request& wanted, bool forward);
    /// 0 when there are no rows. Every key is higher than those that were given before it.
    [[nodiscard]] qint64 highest_key() const;
    /// Marks the row with the highest key when it is higher than this one.
    void mark_newer_than(qint64 key);

private:
    void restore_mark(const QVariant& key, qsizetype row);
    [[nodiscard]] bool go_to(const QVariant& key);

    data_grid& grid_;
    QString key_column_;
    Recordset rows_;
};
