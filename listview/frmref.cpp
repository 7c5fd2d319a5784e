// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmref.h"

#include "listview/forms/dialog_buttons.h"
#include "listview/grid_columns.h"
#include "listview/vc_in.h"
#include "platform/database/recordset.h"
#include "platform/guarded.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"
#include "platform/widgets/owner_window.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmref::frmref(spListHeaders& columns, Recordset& rows, QWidget* parent)
    : QDialog(parent),
      columns_(columns),
      rows_(rows),
      txtFind(new QLineEdit(this)),
      DataGrid1(new data_grid(this)),
      lblFind(new QLabel(u"没有找到"_s, this)) {
    setWindowTitle(columns.vName);
    DataGrid1->setObjectName(u"DataGrid1"_s);
    DataGrid1->setAccessibleName(columns.vName);
    auto* layout = new QVBoxLayout(this);
    add_search_line(*layout);
    layout->addWidget(DataGrid1);
    cmdok = add_buttons(*this, *layout, button_set::pick);

    apply_view(columns, *DataGrid1);
    DataGrid1->set_recordset(&rows);
    DataGrid1->set_sortable();
    tell_found(true);
    resize(wanted_width(), fontMetrics().height() * 26);
    connect(cmdok, &QPushButton::clicked, this, &frmref::pick);
    connect(DataGrid1, &QAbstractItemView::doubleClicked, this, &frmref::pick);
}

frmref::~frmref() {
    DataGrid1->set_recordset(nullptr);
}

void frmref::add_search_line(QBoxLayout& layout) {
    auto* label = new QLabel(u"查找："_s, this);
    label->setBuddy(txtFind);
    txtFind->setObjectName(u"txtFind"_s);
    txtFind->setAccessibleName(label->text());
    lblFind->setObjectName(u"lblFind"_s);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(txtFind, 1);
    line->addWidget(lblFind);
    layout.addLayout(line);
    txtFind->setFocus();
    txtFind->installEventFilter(this);
    connect(txtFind, &QLineEdit::textChanged, this, guarded([this] { search(0, 1); }));
    // Whoever goes to a row by hand means that one.
    connect(DataGrid1, &data_grid::row_changed, this, [this] { tell_found(true); });
    connect(DataGrid1, &QAbstractItemView::clicked, this, [this] { tell_found(true); });
}

bool frmref::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& pressed = static_cast<QKeyEvent&>(*event);
        switch (pressed.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return QCoreApplication::sendEvent(DataGrid1, event);
        case Qt::Key_F3: {
            const int step = pressed.modifiers() == Qt::ShiftModifier ? -1 : 1;
            search(step, step);
            return true;
        }
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmref::search(int skip, int step) {
    const int row = DataGrid1->find_text(txtFind->text(), DataGrid1->row() + skip, step);
    if (row >= 0) {
        rows_.set_position(row);
        DataGrid1->show_position();
    }
    tell_found(row >= 0 || txtFind->text().isEmpty());
}

void frmref::tell_found(bool found) {
    lblFind->setVisible(!found);
    cmdok->setEnabled(found);
}

int frmref::wanted_width() const {
    // All columns, as far as the screen goes.
    const QMargins margins = layout()->contentsMargins();
    const int columns = DataGrid1->horizontalHeader()->length() + 2 * DataGrid1->frameWidth() +
                        DataGrid1->verticalScrollBar()->sizeHint().width();
    return qMin(columns + margins.left() + margins.right(),
                screen()->availableSize().width() * 9 / 10);
}

void frmref::pick() {
    if (DataGrid1->row() < 0) {
        msgbox::critical(u"No select object"_s, u"Warning"_s);
        return;
    }
    int column = 0;
    for (spListHeader& header : columns_) {
        header.Other1 = DataGrid1->text(column++);
    }
    accept();
}

spListHeaders make_picker_columns(const QString& caption, const QString& view_no,
                                  std::span<const picker_column> columns) {
    spListHeaders headers;
    headers.other = u"all"_s;
    headers.vName = caption;
    headers.ViewNo = view_no;
    for (const picker_column& column : columns) {
        headers.Add({.key = column.key.toString(),
                     .caption = column.caption.toString(),
                     .Width = column.width,
                     .FormatStr = column.format.toString()});
    }
    return headers;
}

spListHeaders pick_reference(vc_in& controller, spListHeaders columns) {
    Recordset rows;
    controller.openrs(rows);
    frmref picker(columns, rows, owner_window());
    picker.exec();
    return columns;
}
