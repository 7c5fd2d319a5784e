// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/dialog_buttons.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QPushButton* add_button(QDialog& dialog, QBoxLayout& row, const QString& name,
                        const QString& caption) {
    auto* button = new QPushButton(caption, &dialog);
    button->setObjectName(name);
    row.addWidget(button);
    return button;
}

} // namespace

QPushButton* add_buttons(QDialog& dialog, QBoxLayout& layout, button_set wanted) {
    auto* row = new QHBoxLayout;
    layout.addLayout(row);
    row->addStretch();
    const bool confirms = wanted == button_set::confirm;
    QPushButton* ok = add_button(dialog, *row, confirms ? u"cmdOK"_s : u"cmdok"_s,
                                 wanted == button_set::save ? u"保存"_s : u"确认"_s);
    const QPushButton* cancel =
        add_button(dialog, *row, confirms ? u"cmdCancel"_s : u"cmdcancel"_s, u"取消"_s);
    ok->setDefault(true);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    return ok;
}
