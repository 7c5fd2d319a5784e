// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/labelled_box.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

QLineEdit* add_labelled_box(QFormLayout& form, const QString& label_name, const QString& label,
                            const QString& name, const QString& text, QWidget* behind) {
    auto* box = new QLineEdit(text);
    box->setObjectName(name);
    box->setAccessibleName(label);
    auto* caption = new QLabel(label);
    caption->setObjectName(label_name);
    caption->setBuddy(box);
    auto* row = new QHBoxLayout;
    row->addWidget(box);
    if (behind != nullptr) {
        row->addWidget(behind);
    }
    form.addRow(caption, row);
    return box;
}
