// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmSendsms.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmSendsms::frmSendsms(vc_in& customers, vc_in& phrases, clock_source now, QWidget* parent)
    : message_dialog(u"发送一个短信"_s, std::move(now), parent) {
    add_number(u"txtsmsID"_s, u"User ID:"_s, record.smsid);
    const auto name = add_line(u"txtCname"_s, u"客户名称："_s, record.cname);
    auto* txtCid = add_beside(name, u"txtCid"_s, u"客户编号"_s,
                              {.show = [this] { return QString::number(record.cid); },
                               .read =
                                   [this](const QString& text) {
                                       record.cid = text.isEmpty() ? qint16{0} : to_int16(text);
                                   }});
    const auto mobile = add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    add_picker_button(
        name, u"Cmdrefcus"_s, u"选择客户"_s, [&customers] { return customers.Ref(); },
        {{txtCid, u"cid"_s}, {name.box, u"cname"_s}, {mobile.box, u"mobile"_s}},
        given_up::keeps_them);
    add_message_rows(phrases);
    finish(*mobile.box);
}
