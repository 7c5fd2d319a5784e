// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/edit_dialog.h"

#include "listview/dialog_buttons.h"
#include "listview/picker_button.h"
#include "platform/conversion.h"
#include "platform/data_error.h"
#include "platform/guarded.h"
#include "platform/widgets/msgbox.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The two kinds of box under one pair of names.
QString box_text(const QLineEdit& box) {
    return box.text();
}
QString box_text(const QPlainTextEdit& box) {
    // The box's own way to tell its text makes plain blanks of non-breaking ones.
    return box.document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}
void set_box_text(QLineEdit& box, const QString& text) {
    box.setText(text);
}
void set_box_text(QPlainTextEdit& box, const QString& text) {
    box.setPlainText(text);
}

void select_all(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->selectAll();
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(box)) {
        text->selectAll();
    }
}
void select_nothing(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->deselect();
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(box)) {
        QTextCursor cursor = text->textCursor();
        cursor.clearSelection();
        text->setTextCursor(cursor);
    }
}

/// Saves only what was changed: a box normalises line breaks and shortens what is too long for it.
template <class Box>
std::function<void()> save_if_changed(const Box* box, const std::shared_ptr<QString>& shown,
                                      QString& field) {
    return [box, shown, &field] {
        if (box_text(*box) != *shown) {
            *shown = box_text(*box);
            field = *shown;
        }
    };
}

template <class Box>
std::function<void()> show_field(Box* box, const std::shared_ptr<QString>& shown,
                                 const QString& field) {
    return [box, shown, &field] {
        set_box_text(*box, field);
        *shown = box_text(*box);
    };
}

} // namespace

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
        select_all(first_box_);
    } else {
        select_nothing(focusWidget());
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
    select_nothing(refused);
}

void edit_dialog::add_row(const QString& name, const QString& label, QWidget* box) {
    box->setObjectName(name);
    box->setAccessibleName(label);
    auto* row = new QHBoxLayout; // leaves room for a picker button
    row->addWidget(box);
    auto* caption = new QLabel(label, this);
    caption->setObjectName(u"lblLabels"_s);
    caption->setBuddy(box);
    form_->addRow(caption, row);
}

QLineEdit* edit_dialog::add_number(const QString& name, const QString& label, qint16& field) {
    return add_converted(
        name, label, [&field] { return QString::number(field); },
        [&field](const QString& text) { field = to_int16(text); });
}

QLineEdit* edit_dialog::add_converted(const QString& name, const QString& label,
                                      std::function<QString()> load,
                                      std::function<void(const QString&)> save) {
    QLineEdit* box = bind_line(std::move(load), std::move(save));
    add_row(name, label, box);
    return box;
}

QLineEdit* edit_dialog::bind_line(std::function<QString()> load,
                                  std::function<void(const QString&)> save) {
    auto* box = new QLineEdit(this);
    bindings_.push_back({box, [box, load = std::move(load)] { box->setText(load()); },
                         [box, save = std::move(save)] { save(box->text()); }});
    return box;
}

QLineEdit* edit_dialog::add_number_beside(QWidget& box, const QString& name, const QString& purpose,
                                          qint16& field) {
    return add_converted_beside(
        box, name, purpose, [&field] { return QString::number(field); },
        [&field](const QString& text) { field = to_int16(text); });
}

QLineEdit* edit_dialog::add_converted_beside(QWidget& box, const QString& name,
                                             const QString& purpose, std::function<QString()> load,
                                             std::function<void(const QString&)> save) {
    QLineEdit* number = bind_line(std::move(load), std::move(save));
    number->setObjectName(name);
    number->setAccessibleName(purpose);
    number->setToolTip(purpose);
    number->setFixedWidth(number->fontMetrics().averageCharWidth() * 10);
    row_of(box).addWidget(number);
    return number;
}

QLineEdit* edit_dialog::add_line(const QString& name, const QString& label, QString& field) {
    auto* box = new QLineEdit(this);
    add_row(name, label, box);
    const auto shown = std::make_shared<QString>();
    bindings_.push_back({box, show_field(box, shown, field), save_if_changed(box, shown, field)});
    return box;
}

QPlainTextEdit* edit_dialog::add_text(const QString& name, const QString& label, QString& field) {
    auto* box = new QPlainTextEdit(this);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    add_row(name, label, box);
    const auto shown = std::make_shared<QString>();
    bindings_.push_back({box, show_field(box, shown, field), save_if_changed(box, shown, field)});
    return box;
}

QLabel* edit_dialog::add_note(const QString& name, const QString& text) {
    auto* note = new QLabel(text, this);
    note->setObjectName(name);
    auto* row = new QHBoxLayout; // a row like the others
    row->addWidget(note);
    form_->addRow(static_cast<QWidget*>(nullptr), row);
    return note;
}

void edit_dialog::add_note(const QString& name, const QPlainTextEdit& box,
                           std::function<QString(const QString&)> tell) {
    QLabel* note = add_note(name, tell({}));
    connect(&box, &QPlainTextEdit::textChanged, note,
            [note, &box, tell = std::move(tell)] { note->setText(tell(box_text(box))); });
}

QCheckBox* edit_dialog::add_check(const QString& name, const QString& caption, qint16& field) {
    auto* box = new QCheckBox(caption, this);
    add_row(name, {}, box);
    bindings_.push_back({box, [box, &field] { box->setChecked(field != 0); },
                         [box, &field] { field = box->isChecked() ? qint16{-1} : qint16{0}; }});
    return box;
}

QPushButton* edit_dialog::add_picker_button(const QString& name, QWidget& box,
                                            const QString& purpose,
                                            const std::function<void()>& pick) {
    auto* button = make_picker_button(name, purpose);
    row_of(box).addWidget(button, 0, Qt::AlignTop);
    connect(button, &QPushButton::clicked, this, guarded([pick, &box] {
                pick();
                box.setFocus();
            }));
    return button;
}

void edit_dialog::leave_to(QPushButton* button, std::initializer_list<QLineEdit*> boxes) {
    for (QLineEdit* box : boxes) {
        box->setReadOnly(true);
        box->setFocusProxy(button);
    }
}

QHBoxLayout& edit_dialog::row_of(const QWidget& box) const {
    int i = 0;
    while (form_->itemAt(i, QFormLayout::FieldRole)->layout()->itemAt(0)->widget() != &box) {
        ++i;
    }
    return static_cast<QHBoxLayout&>(*form_->itemAt(i, QFormLayout::FieldRole)->layout());
}

void edit_dialog::finish(QWidget& first_box) {
    first_box_ = &first_box;
    const dialog_buttons buttons =
        add_buttons(*this, *qobject_cast<QVBoxLayout*>(layout()), u"保存"_s, u"取消"_s);
    buttons.ok->setObjectName(u"cmdok"_s);
    buttons.cancel->setObjectName(u"cmdcancel"_s);
    buttons.ok->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where one types
    connect(buttons.ok, &QPushButton::clicked, this, &edit_dialog::save);
    // Enter breaks the line in a box of several lines; Ctrl+Enter saves from everywhere.
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), this), &QShortcut::activated,
            buttons.ok, &QPushButton::click);
    const QSize needed = layout()->totalMinimumSize();
    setMinimumWidth(qMax(fontMetrics().averageCharWidth() * 60, needed.width()));
    resize(minimumWidth(), needed.height());
}

void edit_dialog::load() {
    before_load();
    for (const binding& bound : bindings_) {
        bound.load();
    }
}

void edit_dialog::save() {
    for (const binding& bound : bindings_) {
        try {
            bound.save();
        } catch (const DataError&) {
            refuse(bound.box->objectName(), conversion_refusal());
            return;
        }
    }
    okflag = u"True"_s;
    accept();
}

QString edit_dialog::conversion_refusal() const {
    return u"输入错误"_s;
}
