// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/widgets/recordset_model.h"

#include <QTableView>

/// A read-only grid bound to a record set: the grid's current row is the record set's current row.
/// While there are rows, one of them is marked, and it is the current one: nothing unmarks it.
class data_grid : public QTableView {
    Q_OBJECT

public:
    /// What of the rows is seen: where the marked row stands, and which column comes first.
    struct place {
        int row = -1; ///< the marked one
        int column = -1;
        int top = 0;  ///< the first row that is seen
        int left = 0; ///< of the columns, in pixels
        bool marked_row_seen = false;
    };

    explicit data_grid(QWidget* parent = nullptr);

    void set_columns(const QList<grid_column>& columns);
    /// Binds the rows (nullptr: none) and puts the current row where the record set's cursor
    /// stands.
    void set_recordset(Recordset* rows);
    /// From now on a click on a heading sorts by its column, a second one the other way round.
    void set_sortable();
    /// How many lines of text a row has room for; the marked row stays in sight.
    void set_lines(int lines);

    /// Sorts the record set; the marked row stays marked. Throws DataError.
    void sort_rows(const QString& order);
    /// Makes the record set's current row the grid's, and scrolls to it.
    void show_position();
    /// Scrolls to the marked row.
    void show_marked_row();
    [[nodiscard]] place seen() const;
    /// After the rows were bound again: shows them as they were seen before, the marked row at its
    /// height.
    void show_again(const place& before);

    /// The current row, or -1.
    [[nodiscard]] int row() const;
    /// What a cell of the current row shows; empty when there is none. Columns count from 0.
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] int width_twips(int column) const;
    /// The columns that are not hidden, from the left.
    [[nodiscard]] QList<int> shown_columns() const;
    /// What a row shows in these columns.
    [[nodiscard]] QStringList texts(int row, const QList<int>& columns) const;
    [[nodiscard]] QStringList captions(const QList<int>& columns) const;
    /// The first row, from `start` on in steps of 1 or -1 and round the end, that shows the text in
    /// a column that is not hidden; -1 when there is none. Case does not matter.
    [[nodiscard]] int find_text(const QString& text, int start, int step) const;

signals:
    /// Another row has become the current one.
    void row_changed();
    /// A row was double-clicked, or Enter or Space pressed on it.
    void toggled();
    /// A row was double-clicked, or Enter pressed on it.
    void opened();
    /// A cell cannot be read; told once for the rows bound.
    void failed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void apply_widths();
    void sort_by_heading(int column);
    void show_order();
    [[nodiscard]] int column_to_mark() const;
    [[nodiscard]] bool shows_text(int row, const QList<int>& columns, const QString& text) const;
    /// Dots per inch of a column's width: larger text gets wider columns.
    [[nodiscard]] int resolution() const;

    recordset_model model_;
    Recordset* rows_ = nullptr;
};
