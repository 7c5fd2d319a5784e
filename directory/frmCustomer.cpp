// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/frmCustomer.h"

#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

frmCustomer::frmCustomer(QWidget* parent) : edit_dialog(u"客户资料"_s, parent) {
    add_number(u"txtcID"_s, u"User ID:"_s, record.cid);
    const auto name = add_line(u"txtCname"_s, u"客户名称："_s, record.cname);
    add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    add_line(u"txtSex"_s, u"性别："_s, record.sex);
    add_line(u"txtbirth"_s, u"生日："_s, record.birth);
    add_line(u"txtphone"_s, u"电话："_s, record.phone);
    add_text(u"txtmemo"_s, u"备注："_s, record.memo);
    finish(*name.box);
}
