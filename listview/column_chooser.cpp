// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/column_chooser.h"

#include "data/spListHeaders.h"
#include "listview/forms/dialog_buttons.h"
#include "listview/forms/form_row.h"
#include "platform/widgets/msgbox.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

column_chooser::column_chooser(const spListHeaders& headers, const QString& caption,
                               const QString& options_caption, const QString& first_option,
                               const QString& second_option, QWidget* parent)
    : QDialog(parent),
      ComboColName(new QComboBox(this)),
      ComboKey(new QComboBox(this)),
      form_(new QFormLayout),
      options_{new QRadioButton(first_option, this), new QRadioButton(second_option, this)} {
    setWindowTitle(caption);
    ComboColName->setObjectName(u"ComboColName"_s);
    ComboKey->setObjectName(u"ComboKey"_s);
    ComboKey->hide();
    for (const spListHeader& column : headers) {
        ComboColName->addItem(column.caption);
        ComboKey->addItem(column.key);
    }
    ComboColName->setCurrentIndex(-1);
    ComboColName->setMinimumContentsLength(14);

    auto* frame = new QGroupBox(options_caption, this);
    frame->setObjectName(u"Frame1"_s);
    auto* options = new QHBoxLayout(frame);
    for (QRadioButton* option : options_) {
        options->addWidget(option);
    }
    options_[0]->setObjectName(u"Option1_0"_s);
    options_[1]->setObjectName(u"Option1_1"_s);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form_);
    layout->addWidget(frame);
    layout->addStretch();
    add_row(u"列名："_s, ComboColName);
    choose_option(0);

    const QPushButton* ok = add_buttons(*this, *layout, button_set::confirm);
    connect(ok, &QPushButton::clicked, this, &column_chooser::confirm);
}

void column_chooser::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange); // or the list shows its focus only after a Tab
}

void column_chooser::add_row(const QString& label, QWidget* field) {
    const form_row row(*form_, label, field, u"Label1"_s);
    if (last_field_ != nullptr) {
        setTabOrder(last_field_, field);
    }
    last_field_ = field;
}

void column_chooser::choose_option(size_t index) {
    options_[index]->setChecked(true);
}

void column_chooser::choose_column(const QString& key) {
    ComboColName->setCurrentIndex(ComboKey->findText(key));
}

QString column_chooser::chosen_key() const {
    return ComboKey->currentText();
}

bool column_chooser::is_first_option() const {
    return options_[0]->isChecked();
}

void column_chooser::confirm() {
    if (ComboColName->currentText().isEmpty()) {
        if (ComboColName->count() < 2) {
            msgbox::information(u"请先选择列名！"_s, u"提示"_s);
            return;
        }
        ComboColName->setCurrentIndex(1);
    }
    ComboKey->setCurrentIndex(ComboColName->currentIndex());
    confirmed = true;
    result = make_result(ComboKey->currentText());
    accept();
}
