// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/frmuser.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmuser::frmuser(QWidget* parent) : edit_dialog(u"操作员"_s, parent) {
    add_line(u"txtUserID"_s, u"User ID:"_s, record.userid).box->setReadOnly(true);
    const auto name = add_line(u"txtUserName"_s, u"操作员名称："_s, record.username);
    add_line(u"txtPassword"_s, u"口令："_s, record.password).box->setEchoMode(QLineEdit::Password);
    add_line(u"txtconpass"_s, u"口令确认："_s, record.conpass)
        .box->setEchoMode(QLineEdit::Password);
    finish(*name.box);
}
