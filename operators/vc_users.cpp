// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/vc_users.h"

#include "listview/frmdatagrid.h"
#include "listview/frmref.h"
#include "operators/usermaintain.h"

using namespace Qt::StringLiterals;

void vc_users::listall() {
    open_list_window(windows_, *this, u"VUsers"_s);
}

bool vc_users::createrec() {
    return usermaintain::adduser();
}

bool vc_users::modifyrec(qint16 id) {
    return usermaintain::modifyuser(id);
}

bool vc_users::deleterec(qint16 id) {
    return usermaintain::deleteuser(id);
}

void vc_users::openrs(Recordset& rs) {
    usermaintain::Userrs(rs);
}

QString vc_users::getidstring() const {
    return u"userid"_s;
}

std::optional<spListHeaders> vc_users::Ref() {
    return pick_reference(*this, make_picker_columns(u"操作员列表"_s, u"VUsers"_s,
                                                     {{u"userid", u"编号", 900},
                                                      {u"username", u"操作员名称", 3000}}));
}
