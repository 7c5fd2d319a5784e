// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/frmCusclass.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmCusclass::frmCusclass(QWidget* parent) : edit_dialog(u"客户分类"_s, parent) {
    add_number(u"txtMID"_s, u"User ID:"_s, record.ccid);
    const auto name = add_line(u"txtText"_s, u"客户分类："_s, record.cname);
    finish(*name.box);
}
