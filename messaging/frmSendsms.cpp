// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmSendsms.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmSendsms::frmSendsms(vc_in& customers, vc_in& phrases, clock_source now, QWidget* parent)
    : message_dialog(u"发送一个短信"_s, std::move(now), parent) {
    add_number(u"txtsmsID"_s, u"User ID:"_s, record.smsid);
    txtCname = add_line(u"txtCname"_s, u"客户名称："_s, record.cname);
    txtCid = add_converted_beside(
        *txtCname, u"txtCid"_s, u"客户编号"_s, [this] { return QString::number(record.cid); },
        [this](const QString& text) { record.cid = text.isEmpty() ? qint16{0} : to_int16(text); });
    add_picker_button(u"Cmdrefcus"_s, *txtCname, u"选择客户"_s,
                      [this, &customers] { pick_customer(customers); });
    txtMobile = add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    add_message_rows(phrases);
    finish(*txtMobile);
}

void frmSendsms::pick_customer(vc_in& customers) {
    const auto picked = customers.Ref();
    if (picked && !picked->picked(u"cid"_s).isEmpty()) {
        txtCid->setText(picked->picked(u"cid"_s));
        txtCname->setText(picked->picked(u"cname"_s));
        txtMobile->setText(picked->picked(u"mobile"_s));
    }
}
