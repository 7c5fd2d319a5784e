// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/picker_button.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

QPushButton* make_picker_button(const QString& name, const QString& purpose) {
    auto* button = new QPushButton(u"…"_s);
    button->setObjectName(name);
    button->setToolTip(purpose);
    button->setAccessibleName(purpose);
    button->setFixedWidth(button->fontMetrics().averageCharWidth() * 6);
    return button;
}
