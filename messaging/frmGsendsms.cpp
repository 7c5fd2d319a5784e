// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmGsendsms.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmGsendsms::frmGsendsms(vc_in& classes, vc_in& phrases, clock_source now, QWidget* parent)
    : message_dialog(u"短信群发"_s, std::move(now), parent) {
    add_number(u"txtGSID"_s, u"User ID:"_s, record.gsid);
    txtCname = add_line(u"txtCname"_s, u"群组名称："_s, record.cname);
    txtCid = add_number_beside(*txtCname, u"txtCid"_s, u"分类编号"_s, record.cid);
    add_picker_button(u"Cmdrefcus"_s, *txtCname, u"选择客户分类"_s,
                      [this, &classes] { pick_class(classes); });
    add_check(u"Chkall"_s, u"向所有的客户发送？"_s, record.isall);
    add_message_rows(phrases);
    finish(*txtCname);
}

void frmGsendsms::pick_class(vc_in& classes) {
    const auto picked = classes.Ref();
    if (picked && !picked->picked(u"ccid"_s).isEmpty()) {
        txtCid->setText(picked->picked(u"ccid"_s));
        txtCname->setText(picked->picked(u"cname"_s));
    }
}
