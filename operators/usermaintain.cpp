// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/usermaintain.h"

#include "data/c_users.h"
#include "data/nvltrim.h"
#include "operators/frmuser.h"
#include "operators/rsclsuser.h"
#include "platform/database/recordset.h"
#include "platform/widgets/msgbox.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

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
    frmuser dialog(QApplication::activeWindow());
    while (dialog.ask()) {
        if (!checkuser(dialog) || !insertuser(dialog)) {
            continue;
        }
        if (!msgbox::yes_no(u"成功创建一个新的用户，是否继续? "_s, u"创建成功"_s)) {
            return true;
        }
        dialog.begin_anew();
    }
    return false;
}

bool usermaintain::modifyuser(qint32 id, const QString& first_box) {
    try {
        frmuser dialog(QApplication::activeWindow());
        dialog.begin_in(first_box);
        if (!read_user(dialog, id)) {
            msgbox::information(u"不能修改已经存在的用户"_s, u"修改错误"_s);
            return false;
        }
        while (dialog.ask()) {
            if (checkuser(dialog) && updateuser(dialog)) {
                tell_session_user(dialog.record, id);
                msgbox::information(u"成功修改了用户的信息"_s, u"保存成功"_s);
                return true;
            }
        }
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
        // An operator that cannot be read is not changed; there is no message for it.
    }
    return false;
}

bool usermaintain::deleteuser(qint32 id) {
    if (!c_users().deleterec(id)) {
        msgbox::information(u"不能删除操作员，编号为:"_s + QString::number(id), u"删除错误"_s);
        return false;
    }
    msgbox::information(u"成功删除操作员，编号为:"_s + QString::number(id), u"删除成功"_s);
    return true;
}

bool usermaintain::checkuser(frmuser& dialog) {
    if (nvltrim(dialog.record.username).isEmpty()) {
        dialog.refuse(u"txtUserName"_s, u"用户名称输入错误请检查！"_s);
        return false;
    }
    if (dialog.record.password != dialog.record.conpass) {
        dialog.refuse(u"txtconpass"_s, u"用户口令输入错误！ "_s);
        return false;
    }
    return true;
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
