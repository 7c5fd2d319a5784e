// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/usermaintain.h"

#include "data/c_users.h"
#include "data/nvltrim.h"
#include "listview/forms/entity_loops.h"
#include "operators/frmuser.h"
#include "operators/rsclsuser.h"
#include "platform/database/recordset.h"
#include "platform/widgets/msgbox.h"
#include "platform/widgets/owner_window.h"

using namespace Qt::StringLiterals;

namespace {

// Inserting and updating tell their failures themselves.
constexpr entity_messages texts{
    .insert_succeeded = u"成功创建一个新的用户，是否继续? ",
    .insert_succeeded_title = u"创建成功",
    .update_succeeded = u"成功修改了用户的信息",
};

bool tell_failure(bool saved) {
    if (!saved) {
        msgbox::information(u"输入错误，操作员不能保存！"_s, u"不能保存"_s);
    }
    return saved;
}

bool read_user(frmuser& dialog, qint32 id) {
    Recordset rs;
    c_users().open_user(rs, id);
    if (rs.Bof() && rs.Eof()) {
        return false;
    }
    dialog.record.userid = rs.Fields(u"userid"_s).toString();
    dialog.record.username = rs.Fields(u"username"_s).toString();
    dialog.record.password = rs.Fields(u"password"_s).toString();
    return true;
}

void tell_session_user(const user& changed, qint32 id) {
    if (id == curuser->userid()) {
        curuser->set_username(changed.username);
        curuser->set_password(changed.password);
    }
}

} // namespace

bool usermaintain::adduser() {
    frmuser dialog(owner_window());
    return add_loop(
        dialog, texts, [&] { return checkuser(dialog); }, [&] { return insertuser(dialog); });
}

bool usermaintain::modifyuser(qint32 id, const QString& first_box) {
    try {
        frmuser dialog(owner_window());
        dialog.begin_in(first_box);
        if (!read_user(dialog, id)) {
            msgbox::information(u"不能修改已经存在的用户"_s, u"修改错误"_s);
            return false;
        }
        return edit_loop(
            dialog, texts, [&] { return checkuser(dialog); },
            [&] {
                const bool saved = updateuser(dialog);
                if (saved) {
                    tell_session_user(dialog.record, id);
                }
                return saved;
            });
    } catch (const std::exception&) {
        return false; // an operator that cannot be read is not changed; there is no message for it
    }
}

bool usermaintain::deleteuser(qint32 id) {
    if (id == 0 || !c_users().deleterec(id)) { // an empty list has none to delete
        msgbox::information(u"不能删除操作员，编号为:"_s + QString::number(id), u"删除错误"_s);
        return false;
    }
    msgbox::information(u"成功删除操作员，编号为:"_s + QString::number(id), u"删除成功"_s);
    return true;
}

bool usermaintain::checkuser(frmuser& dialog) {
    return dialog.require(!nvltrim(dialog.record.username).isEmpty(), u"txtUserName"_s,
                          u"用户名称输入错误请检查！"_s) &&
           dialog.require(dialog.record.password == dialog.record.conpass, u"txtconpass"_s,
                          u"用户口令输入错误！ "_s);
}

bool usermaintain::insertuser(const frmuser& dialog) {
    return tell_failure(c_users().addrec(dialog.record.username, nvltrim(dialog.record.password)));
}

bool usermaintain::updateuser(const frmuser& dialog) {
    return tell_failure(c_users().updaterec(dialog.record.userid.toInt(), dialog.record.username,
                                            dialog.record.password));
}

void usermaintain::Userrs(Recordset& rs) {
    c_users().openrs(rs);
}
