// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/vc_users.h"

#include "operators/usermaintain.h"

#include <array>

namespace {

constexpr auto picker_columns =
    std::to_array<picker_column>({{u"userid", u"编号", 900}, {u"username", u"操作员名称", 3000}});

constexpr entity_description described{.view_no = u"VUsers",
                                       .id_column = u"userid",
                                       .picker_caption = u"操作员列表",
                                       .picker_columns = picker_columns};

} // namespace

vc_users::vc_users(QMdiArea& windows) : list_screen(windows, described) {}

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
