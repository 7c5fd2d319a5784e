// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_customer.h"

#include "listview/frmref.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr entity_messages texts{
    .insert_failed = u"输入错误，不能保存客户信息，请检查！",
    .insert_succeeded = u"成功创建一个客户信息，继续创建吗？ ",
    .record_missing = u"不能修改客户, 记录不存在！",
    .update_failed = u"修改了客户不成功。 ",
    .update_succeeded = u"成功地修改了客户。 ",
    .delete_succeeded = u"成功删除客户",
    .delete_failed = u"不能删除客户",
};

} // namespace

vc_customer::vc_customer(QMdiArea& windows)
    : entity_screen(windows, u"v_customer", u"cid", texts) {}

std::unique_ptr<frmCustomer> vc_customer::make_dialog() const {
    return std::make_unique<frmCustomer>(QApplication::activeWindow());
}

bool vc_customer::validate(frmCustomer& dialog) const {
    if (dialog.record.mobile.trimmed().isEmpty()) {
        dialog.refuse(u"txtMobile"_s, u"输入的客户信息错误，必须输入手机号码，请检查！  "_s);
        return false;
    }
    return true;
}

bool vc_customer::insert(const m_customer& added) const {
    return records->addrec(added.birth, added.cname, added.sex, added.mobile, added.phone,
                           added.memo);
}

bool vc_customer::update(const m_customer& changed) const {
    return records->updaterec(changed.cid, changed.birth, changed.cname, changed.sex,
                              changed.mobile, changed.phone, changed.memo);
}

std::optional<spListHeaders> vc_customer::Ref() {
    return pick_reference(*this, make_picker_columns(u"客户资料"_s, u"v_customer"_s,
                                                     {{u"cid", u"编号", 900, u"@"},
                                                      {u"mobile", u"手机", 1800, u"@"},
                                                      {u"cname", u"客户名称", 1800, u"@"},
                                                      {u"birth", u"生日", 1350, u"@"},
                                                      {u"phone", u"电话", 1800, u"@"},
                                                      {u"sex", u"性别", 750, u"@"},
                                                      {u"memo", u"备注", 3000, u"@"}}));
}
