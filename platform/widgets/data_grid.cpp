// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/data_grid.h"

#include "platform/twips.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QStyledItemDelegate>

#include <limits>

namespace {

/// Paints the beginning of a text: laying out ten thousand characters for one line would make
/// scrolling crawl.
class first_line_delegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant& value, const QLocale& locale) const override {
        constexpr qsizetype most_characters = 500; // more than the widest column shows
        return QStyledItemDelegate::displayText(value.toString().left(most_characters), locale);
    }
};

} // namespace

DataGrid::DataGrid(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setItemDelegate(new first_line_delegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(true);

    connect(this, &QTableView::doubleClicked, this, &DataGrid::toggled);

    const int line = fontMetrics().height();
    verticalHeader()->setDefaultSectionSize(line + line / 2);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    // A width is kept as a 16-bit number of twips: a column cannot be dragged wider than that.
    horizontalHeader()->setMaximumSectionSize(std::numeric_limits<qint16>::max() * resolution() /
                                              twips::per_inch);
}

void DataGrid::set_columns(const QList<grid_column>& columns) {
    model_.set_columns(columns);
    apply_widths();
}

void DataGrid::apply_widths() {
    for (int i = 0; i < model_.columnCount(); ++i) {
        const grid_column& column = model_.columns().at(i);
        const int width = twips::to_pixels(column.width_twips, resolution());
        setColumnWidth(i, width > 0 ? width : horizontalHeader()->defaultSectionSize());
        setColumnHidden(i, !column.visible);
    }
}

void DataGrid::set_recordset(Recordset* rows) {
    rows_ = nullptr; // the reset below must not move the new set's cursor
    model_.set_recordset(rows);
    rows_ = rows;
    show_position();
}

void DataGrid::refresh_rows() {
    set_recordset(rows_);
}

void DataGrid::show_position() {
    if (rows_ == nullptr || rows_->State() == Recordset::StateEnum::closed || rows_->Bof() ||
        rows_->Eof()) {
        return;
    }
    const int first_visible = horizontalHeader()->logicalIndexAt(0);
    const QModelIndex index =
        model_.index(static_cast<int>(rows_->position()), qMax(first_visible, 0));
    setCurrentIndex(index);
    scrollTo(index);
}

int DataGrid::row() const {
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

QString DataGrid::text(int column) const {
    return model_.data(model_.index(row(), column), Qt::DisplayRole).toString();
}

int DataGrid::width_twips(int column) const {
    return twips::from_pixels(columnWidth(column), resolution());
}

int DataGrid::resolution() const {
    constexpr double usual_size = 9; // points; what the widths that are delivered have room for
    return qRound(logicalDpiX() * qMax(QFontInfo(font()).pointSizeF() / usual_size, 1.0));
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    const bool toggles = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         event->key() == Qt::Key_Space;
    if (toggles && row() >= 0 && isSignalConnected(QMetaMethod::fromSignal(&DataGrid::toggled))) {
        if (!event->isAutoRepeat()) { // a key held down is pressed once
            emit toggled();
        }
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void DataGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (rows_ != nullptr && current.isValid()) {
        rows_->set_position(current.row());
        if (current.row() != previous.row()) {
            emit row_changed();
        }
    }
}
