// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/widgets/recordset_model.h"

#include <QTableView>

/// A read-only grid bound to a record set: the grid's current row is the record set's current row.
class DataGrid : public QTableView {
    Q_OBJECT

public:
    explicit DataGrid(QWidget* parent = nullptr);

    void set_columns(const QList<grid_column>& columns);
    /// Binds the rows (nullptr: none) and puts the current row where the record set's cursor
    /// stands.
    void set_recordset(Recordset* rows);

    /// Shows the record set's rows again, after a sort.
    void refresh_rows();
    /// Makes the record set's current row the grid's, and scrolls to it.
    void show_position();

    /// The current row, or -1.
    [[nodiscard]] int row() const;
    /// What a cell of the current row shows; empty when there is none. Columns count from 0.
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] int width_twips(int column) const;

signals:
    /// Another row has become the current one.
    void row_changed();
    /// A row was double-clicked, or Enter or Space pressed on it.
    void toggled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void apply_widths();
    /// Dots per inch of a column's width: larger text gets wider columns.
    [[nodiscard]] int resolution() const;

    RecordsetModel model_;
    Recordset* rows_ = nullptr;
};
