// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/data_grid.h"

#include "platform/guarded.h"
#include "platform/twips.h"
#include "platform/widgets/cell_delegate.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QScrollBar>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

data_grid::data_grid(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setItemDelegate(new cell_delegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(true);

    connect(this, &QTableView::doubleClicked, this, &data_grid::toggled);
    connect(this, &QTableView::doubleClicked, this, &data_grid::opened);
    // Cells are read while they are painted, when no box may come up.
    connect(&model_, &recordset_model::cell_failed, this, &data_grid::failed, Qt::QueuedConnection);

    set_lines(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    // A width is kept as a 16-bit number of twips: a column cannot be dragged wider than that.
    horizontalHeader()->setMaximumSectionSize(std::numeric_limits<qint16>::max() * resolution() /
                                              twips::per_inch);
}

void data_grid::set_columns(const QList<grid_column>& columns) {
    model_.set_columns(columns);
    apply_widths();
    show_position();
    show_order();
}

void data_grid::apply_widths() {
    for (int i = 0; i < model_.columnCount(); ++i) {
        const grid_column& column = model_.columns().at(i);
        const int width = twips::to_pixels(column.width_twips, resolution());
        setColumnWidth(i, width > 0 ? width : horizontalHeader()->defaultSectionSize());
        setColumnHidden(i, !column.visible);
    }
}

void data_grid::set_recordset(Recordset* rows) {
    rows_ = nullptr; // the reset below must not move the new set's cursor
    model_.set_recordset(rows);
    rows_ = rows;
    show_position();
    show_order();
}

void data_grid::set_sortable() {
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            guarded([this](int column) { sort_by_heading(column); }));
}

void data_grid::set_lines(int lines) {
    const int line = fontMetrics().lineSpacing();
    verticalHeader()->setDefaultSectionSize(line * lines + line / 2);
    updateGeometries(); // the scroll bar's range, before it is moved
    show_marked_row();
}

void data_grid::sort_by_heading(int column) {
    // The header has turned its arrow already.
    const bool descending = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
    const QString& field = model_.columns().at(column).data_field;
    if (rows_ != nullptr && rows_->column(field) >= 0) {
        sort_rows(u"[%1] %2"_s.arg(field, descending ? u"DESC"_s : u"ASC"_s));
    }
}

void data_grid::sort_rows(const QString& order) {
    const qsizetype marked = row() < 0 ? -1 : rows_->store_row(row());
    rows_->set_Sort(order);
    for (qsizetype i = 0; i < rows_->RecordCount(); ++i) {
        if (rows_->store_row(i) == marked) {
            rows_->set_position(i);
            break;
        }
    }
    set_recordset(rows_);
}

/// The arrow stands in the column that the rows are sorted by, wherever that was chosen.
void data_grid::show_order() {
    const QString order = rows_ == nullptr ? QString() : rows_->Sort().trimmed();
    QString field = order.section(u' ', 0, 0);
    if (field.startsWith(u'[')) {
        field = order.sliced(1, order.indexOf(u']') - 1);
    }
    int column = model_.columnCount() - 1;
    while (column >= 0 && model_.columns().at(column).data_field != field) {
        --column;
    }
    QHeaderView& header = *horizontalHeader();
    header.setSortIndicatorShown(column >= 0 && !field.isEmpty());
    header.setSortIndicator(column,
                            order.endsWith(u"DESC"_s) ? Qt::DescendingOrder : Qt::AscendingOrder);
}

int data_grid::column_to_mark() const {
    const int current = currentIndex().column();
    return current >= 0 && !isColumnHidden(current)
               ? current
               : qMax(horizontalHeader()->logicalIndexAt(0), 0);
}

void data_grid::show_position() {
    if (rows_ == nullptr || model_.rowCount() == 0) {
        return;
    }
    const int last = model_.rowCount() - 1;
    const int row = qBound(0, static_cast<int>(rows_->position()), last);
    setCurrentIndex(model_.index(row, column_to_mark()));
    rows_->set_position(row); // also when it stood beyond the rows and the mark did not move
    show_marked_row();
}

void data_grid::show_marked_row() {
    const int left = horizontalScrollBar()->value();
    scrollTo(currentIndex());
    horizontalScrollBar()->setValue(left);
}

data_grid::place data_grid::seen() const {
    const QRect marked = visualRect(currentIndex());
    return {.row = row(),
            .column = currentIndex().column(),
            .top = verticalScrollBar()->value(),
            .left = horizontalScrollBar()->value(),
            .marked_row_seen = marked.bottom() >= 0 && marked.top() < viewport()->height()};
}

void data_grid::show_again(const place& before) {
    executeDelayedItemsLayout();
    if (row() < 0 || before.row < 0) {
        return;
    }
    setCurrentIndex(model_.index(row(), before.column));
    const int moved = before.marked_row_seen ? row() - before.row : 0;
    verticalScrollBar()->setValue(before.top + moved);
    horizontalScrollBar()->setValue(before.left);
}

int data_grid::row() const {
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

QString data_grid::text(int column) const {
    return model_.data(model_.index(row(), column), Qt::DisplayRole).toString();
}

int data_grid::width_twips(int column) const {
    return twips::from_pixels(columnWidth(column), resolution());
}

QList<int> data_grid::shown_columns() const {
    QList<int> columns;
    for (int column = 0; column < model_.columnCount(); ++column) {
        if (!isColumnHidden(column)) {
            columns.append(column);
        }
    }
    return columns;
}

QStringList data_grid::texts(int row, const QList<int>& columns) const {
    QStringList texts;
    for (const int column : columns) {
        const QModelIndex cell = model_.index(row, column);
        const bool checked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        texts.append(checked ? u"√"_s : cell.data().toString());
    }
    return texts;
}

QStringList data_grid::captions(const QList<int>& columns) const {
    QStringList captions;
    for (const int column : columns) {
        captions.append(model_.columns().at(column).caption);
    }
    return captions;
}

bool data_grid::shows_text(int row, const QList<int>& columns, const QString& text) const {
    return std::any_of(columns.begin(), columns.end(), [&](int column) {
        return model_.index(row, column).data().toString().contains(text, Qt::CaseInsensitive);
    });
}

int data_grid::find_text(const QString& text, int start, int step) const {
    const int rows = model_.rowCount();
    const QList<int> columns = shown_columns();
    for (int i = 0; i < rows; ++i) {
        const int row = (start + i * step + 2 * rows) % rows;
        if (shows_text(row, columns, text)) {
            return row;
        }
    }
    return -1;
}

int data_grid::resolution() const {
    constexpr double usual_size = 9; // points; what the widths that are delivered have room for
    return qRound(logicalDpiX() * qMax(QFontInfo(font()).pointSizeF() / usual_size, 1.0));
}

void data_grid::keyPressEvent(QKeyEvent* event) {
    const auto is_heard = [this](const QMetaMethod& signal) { return isSignalConnected(signal); };
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool opens = enters && is_heard(QMetaMethod::fromSignal(&data_grid::opened));
    const bool toggles = (enters || event->key() == Qt::Key_Space) &&
                         is_heard(QMetaMethod::fromSignal(&data_grid::toggled));
    if (row() < 0 || !(opens || toggles)) {
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat()) {
        return; // a key that is held down acts once
    }
    if (opens) {
        emit opened();
    }
    if (toggles) {
        emit toggled();
    }
}

void data_grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (rows_ != nullptr && current.isValid()) {
        rows_->set_position(current.row());
        if (current.row() != previous.row()) {
            emit row_changed();
        }
    }
}

QItemSelectionModel::SelectionFlags data_grid::selectionCommand(const QModelIndex& index,
                                                                const QEvent* /*event*/) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

QModelIndex data_grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd) {
        return model_.index(action == MoveHome ? 0 : model_.rowCount() - 1, column_to_mark());
    }
    return QTableView::moveCursor(action, modifiers);
}
