// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/dialog_buttons.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPushButton>

dialog_buttons add_buttons(QDialog& dialog, QBoxLayout& layout, const QString& ok_caption,
                           const QString& cancel_caption) {
    auto* row = new QHBoxLayout;
    layout.addLayout(row);
    row->addStretch();
    const dialog_buttons buttons{new QPushButton(ok_caption, &dialog),
                                 new QPushButton(cancel_caption, &dialog)};
    row->addWidget(buttons.ok);
    row->addWidget(buttons.cancel);
    buttons.ok->setDefault(true);
    QObject::connect(buttons.cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    return buttons;
}
