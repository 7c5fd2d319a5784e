// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/form_row.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

form_row::form_row(QFormLayout& form, const QString& label, QWidget* box, const QString& label_name)
    : first_box_(box), line_(new QHBoxLayout) {
    auto* caption = new QLabel(label);
    caption->setObjectName(label_name);
    caption->setBuddy(box);
    box->setAccessibleName(label);
    line_->addWidget(box);
    form.addRow(caption, line_);
}

void form_row::append(QWidget* behind, Qt::Alignment alignment) const {
    QWidget* last = line_->itemAt(line_->count() - 1)->widget();
    line_->addWidget(behind, 0, alignment);
    QWidget::setTabOrder(last, behind); // there may be rows below already
}

row_with<QLineEdit> add_line_row(QFormLayout& form, const QString& label_name, const QString& label,
                                 const QString& name, const QString& text) {
    auto* box = new QLineEdit(text);
    box->setObjectName(name);
    return {form, label, box, label_name};
}
