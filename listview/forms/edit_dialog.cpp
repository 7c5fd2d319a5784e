// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/edit_dialog.h"

#include "listview/forms/dialog_buttons.h"
#include "listview/forms/text_box.h"
#include "platform/data_error.h"
#include "platform/widgets/msgbox.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

edit_dialog::edit_dialog(const QString& caption, QWidget* parent)
    : QDialog(parent), form_(new QFormLayout) {
    setWindowTitle(caption);
    form_->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form_);
}

bool edit_dialog::ask() {
    if (!loaded_) {
        load();
        loaded_ = true;
    }
    okflag = u"False"_s;
    setModal(true);
    show(); // which selects all in the box with the keyboard: the next key would replace it
    if (std::exchange(begins_, false)) {
        first_box_->setFocus();
        text_box::select_all(first_box_);
    } else {
        text_box::select_nothing(focusWidget());
    }
    exec();
    return okflag == "True"_L1;
}

void edit_dialog::begin_anew() {
    begins_ = true;
}

void edit_dialog::begin_in(const QString& box) {
    first_box_ = findChild<QWidget*>(box);
}

void edit_dialog::refuse(const QString& box, const QString& text) {
    msgbox::critical(text, u"输入错误"_s);
    auto* refused = findChild<QWidget*>(box);
    refused->setFocus();
    text_box::select_nothing(refused);
}

bool edit_dialog::require(bool condition, const QString& box, const QString& text) {
    if (!condition) {
        refuse(box, text);
    }
    return condition;
}

template <class Box>
row_with<Box> edit_dialog::add_row(const QString& name, const QString& label, Box* box) {
    box->setObjectName(name);
    return {*form_, label, box};
}

row_with<QLineEdit> edit_dialog::add_line(const QString& name, const QString& label,
                                          QString& field) {
    const auto row = add_row(name, label, new QLineEdit(this));
    fields_.push_back(std::make_unique<text_field>(*row.box, field));
    return row;
}

row_with<QPlainTextEdit> edit_dialog::add_text(const QString& name, const QString& label,
                                               QString& field) {
    const auto row = add_row(name, label, new QPlainTextEdit(this));
    row.box->setTabChangesFocus(true);
    row.box->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    fields_.push_back(std::make_unique<text_field>(*row.box, field));
    return row;
}

row_with<QLineEdit> edit_dialog::add_number(const QString& name, const QString& label,
                                            qint16& field) {
    return add_converted(name, label, number_of(field));
}

row_with<QLineEdit> edit_dialog::add_converted(const QString& name, const QString& label,
                                               box_conversion conversion) {
    const auto row = add_row(name, label, new QLineEdit(this));
    fields_.push_back(std::make_unique<converted_field>(*row.box, std::move(conversion)));
    return row;
}

row_with<QCheckBox> edit_dialog::add_check(const QString& name, const QString& caption,
                                           qint16& field) {
    const auto row = add_row(name, {}, new QCheckBox(caption, this));
    fields_.push_back(std::make_unique<check_field>(*row.box, field));
    return row;
}

QLineEdit* edit_dialog::add_beside(const form_row& row, const QString& name, const QString& purpose,
                                   box_conversion conversion) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setAccessibleName(purpose);
    box->setToolTip(purpose);
    box->setFixedWidth(box->fontMetrics().averageCharWidth() * 10);
    row.append(box);
    fields_.push_back(std::make_unique<converted_field>(*box, std::move(conversion)));
    return box;
}

QLabel* edit_dialog::add_note(const QString& name, const QString& text) {
    auto* note = new QLabel(text, this);
    note->setObjectName(name);
    form_->addRow(static_cast<QWidget*>(nullptr), note);
    return note;
}

void edit_dialog::finish(QWidget& first_box) {
    first_box_ = &first_box;
    QPushButton* ok = add_buttons(*this, *qobject_cast<QVBoxLayout*>(layout()), button_set::save);
    ok->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where one types
    connect(ok, &QPushButton::clicked, this, &edit_dialog::save);
    // Enter breaks the line in a box of several lines; Ctrl+Enter saves from everywhere.
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), this), &QShortcut::activated, ok,
            &QPushButton::click);
    const QSize needed = layout()->totalMinimumSize();
    setMinimumWidth(qMax(fontMetrics().averageCharWidth() * 60, needed.width()));
    resize(minimumWidth(), needed.height());
}

void edit_dialog::load() {
    before_load();
    for (const auto& field : fields_) {
        field->load();
    }
}

void edit_dialog::save() {
    for (const auto& field : fields_) {
        try {
            field->save();
        } catch (const DataError&) {
            refuse(field->box().objectName(), conversion_refusal());
            return;
        }
    }
    okflag = u"True"_s;
    accept();
}

QString edit_dialog::conversion_refusal() const {
    return u"输入错误"_s;
}
