// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/frmGroup.h"

#include "listview/vc_in.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmGroup::frmGroup(vc_in& classes, vc_in& customers, QWidget* parent)
    : edit_dialog(u"客户分组"_s, parent) {
    add_number(u"txtgid"_s, u"User ID:"_s, record.gid);
    txtCcname = add_line(u"txtCcname"_s, u"分组名称："_s, record.cname);
    txtccID = add_number_beside(*txtCcname, u"txtccID"_s, u"分类编号"_s, record.ccid);
    auto* cmdref = add_picker_button(u"cmdref"_s, *txtCcname, u"选择客户分类"_s,
                                     [this, &classes] { pick_class(classes); });
    txtcid = add_number(u"txtcid"_s, u"User ID:"_s, record.cid);
    auto* Cmdrefcus = add_picker_button(u"Cmdrefcus"_s, *txtcid, u"选择客户"_s,
                                        [this, &customers] { pick_customer(customers); });
    txtcusname = add_line(u"txtcusname"_s, u"客户名称："_s, record.cusname);
    txtMobile = add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    leave_to(cmdref, {txtCcname, txtccID});
    leave_to(Cmdrefcus, {txtcid, txtcusname, txtMobile});
    finish(*cmdref);
}

// Boxes whose pick was given up are emptied: what they showed was not chosen.

void frmGroup::pick_class(vc_in& classes) {
    const spListHeaders picked = classes.Ref().value();
    txtccID->setText(picked.picked(u"ccid"_s));
    txtCcname->setText(picked.picked(u"cname"_s));
}

void frmGroup::pick_customer(vc_in& customers) {
    const spListHeaders picked = customers.Ref().value();
    txtcid->setText(picked.picked(u"cid"_s));
    txtcusname->setText(picked.picked(u"cname"_s));
    txtMobile->setText(picked.picked(u"mobile"_s));
}
