// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/frmuser.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmuser::frmuser(QWidget* parent) : edit_dialog(u"操作员"_s, parent) {
    auto* txtUserID = add_line(u"txtUserID"_s, u"User ID:"_s, record.userid);
    txtUserID->setReadOnly(true);
    auto* txtUserName = add_line(u"txtUserName"_s, u"操作员名称："_s, record.username);
    add_line(u"txtPassword"_s, u"口令："_s, record.password)->setEchoMode(QLineEdit::Password);
    add_line(u"txtconpass"_s, u"口令确认："_s, record.conpass)->setEchoMode(QLineEdit::Password);
    finish(*txtUserName);
}
