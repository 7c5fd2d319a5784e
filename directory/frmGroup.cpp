// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/frmGroup.h"

#include "listview/forms/picker_button.h"
#include "listview/vc_in.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmGroup::frmGroup(vc_in& classes, vc_in& customers, QWidget* parent)
    : edit_dialog(u"客户分组"_s, parent) {
    add_number(u"txtgid"_s, u"User ID:"_s, record.gid);
    const auto of_class = add_line(u"txtCcname"_s, u"分组名称："_s, record.cname);
    auto* txtccID = add_beside(of_class, u"txtccID"_s, u"分类编号"_s, number_of(record.ccid));
    // Boxes whose pick was given up are emptied: what they showed was not chosen.
    auto* cmdref = add_picker_button(
        of_class, u"cmdref"_s, u"选择客户分类"_s, [&classes] { return classes.Ref(); },
        {{txtccID, u"ccid"_s}, {of_class.box, u"cname"_s}}, given_up::empties_them);
    const auto of_customer = add_number(u"txtcid"_s, u"User ID:"_s, record.cid);
    const auto name = add_line(u"txtcusname"_s, u"客户名称："_s, record.cusname);
    const auto mobile = add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    auto* Cmdrefcus = add_picker_button(
        of_customer, u"Cmdrefcus"_s, u"选择客户"_s, [&customers] { return customers.Ref(); },
        {{of_customer.box, u"cid"_s}, {name.box, u"cname"_s}, {mobile.box, u"mobile"_s}},
        given_up::empties_them);
    leave_to(cmdref, {of_class.box, txtccID});
    leave_to(Cmdrefcus, {of_customer.box, name.box, mobile.box});
    finish(*cmdref);
}
