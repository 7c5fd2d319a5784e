// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/connection.h"
#include "platform/database/row_store.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

/// A set of rows with a current row. Every set is a snapshot on the client's side; with
/// `LockType` optimistic, rows of a "select * from TABLE …" can be changed and added.
/// Every operation throws DataError: `statement` and its kin when the database refuses, `cursor`
/// when the set is closed or has no current row.
class Recordset {
public:
    enum class StateEnum { closed = 0, open = 1 };
    enum class LockTypeEnum { read_only = 1, optimistic = 3 };
    enum class SearchDirectionEnum { backward = -1, forward = 1 };

    LockTypeEnum LockType = LockTypeEnum::read_only;

    /// What `Open` and `Update` work on: a connection string, from which the set opens a connection
    /// of its own, or an open connection.
    void set_ActiveConnection(const QString& connection_string);
    void set_ActiveConnection(const Connection& connection);
    /// Lets go of the connection; the rows stay.
    void detach();

    /// Opens on a statement, or on a whole table given by its name alone.
    void Open(const QString& source);
    /// Opens an empty set of these fields that belongs to no table; its rows live in memory alone.
    void OpenInMemory(const QStringList& fields);
    void Close();
    [[nodiscard]] StateEnum State() const;

    [[nodiscard]] bool Bof() const;
    [[nodiscard]] bool Eof() const;
    void MoveFirst();
    void MoveNext();
    [[nodiscard]] qsizetype RecordCount() const;
    /// The current row from 0; -1 before the first, RecordCount() behind the last.
    [[nodiscard]] qsizetype position() const;
    void set_position(qsizetype row);

    /// Searches from `skip` rows beyond the current one for a row with COLUMN = 'text' or COLUMN =
    /// number; the cursor ends on it, or at Eof (Bof when searching backward) when there is none.
    /// Texts compare without regard to case, numbers and date-times by their value.
    void Find(const QString& condition, qsizetype skip = 0,
              SearchDirectionEnum direction = SearchDirectionEnum::forward);
    /// Orders the rows by "COLUMN", "COLUMN ASC" or "COLUMN DESC" and goes to the first; an empty
    /// text brings the original order back.
    void set_Sort(const QString& order);
    /// What the rows are ordered by; empty as they came.
    [[nodiscard]] const QString& Sort() const noexcept { return sort_; }

    /// A field of the current row; Null is an invalid QVariant.
    [[nodiscard]] QVariant Fields(const QString& name) const;
    /// Changes a field of the current row; `Update` stores it, and so does going to another row.
    void set_Fields(const QString& name, const QVariant& value);
    /// Adds a row of Nulls and makes it the current one; `Update` stores it.
    void AddNew();
    void Update();

    // For grids and bulk readers: cells by row (in the present order) and column, both from 0.
    [[nodiscard]] qsizetype column(QStringView name) const { return store_.column(name); }
    [[nodiscard]] const row_store& store() const { return store_; }
    [[nodiscard]] qsizetype store_row(qsizetype row) const;

private:
    void require_closed() const;
    void require_open() const;
    [[nodiscard]] qsizetype current_row() const;
    [[nodiscard]] qsizetype require_column(const QString& name) const;
    [[nodiscard]] physical_database& database();
    void read_rows(const QString& statement);
    [[nodiscard]] QVariantList changed_values(qsizetype row) const;
    void store_new_row(qsizetype row);
    void store_changed_row(qsizetype row);

    QString connection_string_;
    std::shared_ptr<physical_database> database_;

    StateEnum state_ = StateEnum::closed;
    row_store store_;
    QString sort_;
    std::vector<qint32> order_; ///< rows of the store in their sorted order; empty: as they came
    qsizetype position_ = -1;

    QString table_;                ///< the table behind an updatable set
    std::vector<qint64> row_ids_;  ///< its row ids, one a stored row; 0 for a row not stored yet
    std::vector<qsizetype> dirty_; ///< columns changed in the current row
};
