// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/frmSmsm.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

frmSmsm::frmSmsm(QWidget* parent) : edit_dialog(u"短语维护"_s, parent) {
    add_number(u"txtMID"_s, u"User ID:"_s, record.mid);
    const auto text = add_text(u"txtText"_s, u"短语："_s, record.text);
    finish(*text.box);
}
