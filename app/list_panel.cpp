// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/list_panel.h"

#include "listview/frmdatagrid.h"

#include <QMdiArea>
#include <QMdiSubWindow>

list_panel::list_panel(const QMdiArea& windows, QWidget* parent)
    : QLabel(parent), windows_(windows) {
    setObjectName(QStringLiteral("Panel1"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, sizePolicy().verticalPolicy()); // a path may be long
    connect(&windows, &QMdiArea::subWindowActivated, this, &list_panel::watch);
}

void list_panel::watch() {
    if (list_ != nullptr) {
        list_->disconnect(this);
    }
    // A dialog above the frame leaves the list in front, though none is active then.
    const QMdiSubWindow* front = windows_.currentSubWindow();
    list_ = front == nullptr ? nullptr : qobject_cast<frmdatagrid*>(front->widget());
    if (list_ != nullptr) {
        connect(list_, &frmdatagrid::status_changed, this, &list_panel::tell);
    }
    tell();
}

void list_panel::tell() {
    setText(list_ == nullptr ? QString() : list_->status());
}
