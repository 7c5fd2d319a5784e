// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmref.h"

#include "listview/dialog_buttons.h"
#include "listview/vc_in.h"
#include "listview/view_definition.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"

#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmref::frmref(spListHeaders& columns, Recordset& rows, QWidget* parent)
    : QDialog(parent), columns_(columns), DataGrid1(new DataGrid(this)) {
    setWindowTitle(columns.vName);
    DataGrid1->setObjectName(u"DataGrid1"_s);
    DataGrid1->setAccessibleName(columns.vName);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(DataGrid1);
    const dialog_buttons buttons = add_buttons(*this, *layout, u"确认"_s, u"取消"_s);
    buttons.ok->setObjectName(u"cmdok"_s);
    buttons.cancel->setObjectName(u"cmdcancel"_s);

    apply_view(columns, *DataGrid1);
    DataGrid1->set_recordset(&rows);
    resize(wanted_width(), fontMetrics().height() * 26);
    connect(buttons.ok, &QPushButton::clicked, this, &frmref::pick);
    connect(DataGrid1, &QAbstractItemView::doubleClicked, this, &frmref::pick);
}

frmref::~frmref() {
    DataGrid1->set_recordset(nullptr);
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
                                  std::initializer_list<picker_column> columns) {
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
    frmref picker(columns, rows, QApplication::activeWindow());
    picker.exec();
    return columns;
}
