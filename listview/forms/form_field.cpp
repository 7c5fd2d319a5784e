// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/form_field.h"

#include "listview/forms/text_box.h"
#include "platform/conversion.h"

#include <QCheckBox>
#include <QLineEdit>

#include <utility>

void text_field::load() {
    text_box::set_text(box(), field_);
    shown_ = text_box::text(box());
}

void text_field::save() {
    if (text_box::text(box()) != shown_) {
        shown_ = text_box::text(box());
        field_ = shown_;
    }
}

box_conversion number_of(qint16& field) {
    return {.show = [&field] { return QString::number(field); },
            .read = [&field](const QString& text) { field = to_int16(text); }};
}

converted_field::converted_field(QLineEdit& box, box_conversion conversion)
    : form_field(box), line_(box), conversion_(std::move(conversion)) {}

void converted_field::load() {
    line_.setText(conversion_.show());
}

void converted_field::save() {
    conversion_.read(line_.text());
}

check_field::check_field(QCheckBox& box, qint16& field)
    : form_field(box), check_(box), field_(field) {}

void check_field::load() {
    check_.setChecked(field_ != 0);
}

void check_field::save() {
    field_ = check_.isChecked() ? qint16{-1} : qint16{0};
}
