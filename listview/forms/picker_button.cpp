// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/picker_button.h"

#include "listview/forms/form_row.h"
#include "listview/forms/text_box.h"
#include "platform/guarded.h"

#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool is_picked(const spListHeaders& row) {
    return std::any_of(row.begin(), row.end(),
                       [](const spListHeader& column) { return !column.Other1.isEmpty(); });
}

void fill(const std::vector<picked_box>& boxes, const spListHeaders& row) {
    for (const auto& [box, column] : boxes) {
        text_box::set_text(*box, row.picked(column));
    }
}

} // namespace

QPushButton* add_picker_button(const form_row& row, const QString& name, const QString& purpose,
                               row_picker pick, std::vector<picked_box> boxes, given_up otherwise) {
    auto* button = new QPushButton(u"…"_s);
    button->setObjectName(name);
    button->setToolTip(purpose);
    button->setAccessibleName(purpose);
    button->setFixedWidth(button->fontMetrics().averageCharWidth() * 6);
    row.append(button, Qt::AlignTop); // of a tall box
    QObject::connect(button, &QPushButton::clicked, button,
                     guarded([pick = std::move(pick), boxes = std::move(boxes), otherwise,
                              &first_box = row.first_box()] {
                         const auto picked = pick();
                         if (picked &&
                             (otherwise == given_up::empties_them || is_picked(*picked))) {
                             fill(boxes, *picked);
                         }
                         first_box.setFocus();
                     }));
    return button;
}

void leave_to(QPushButton* button, std::initializer_list<QLineEdit*> boxes) {
    for (QLineEdit* box : boxes) {
        box->setReadOnly(true);
        box->setFocusProxy(button);
    }
}
