// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_customer.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto picker_columns = std::to_array<picker_column>({
    {u"cid", u"编号", 900, u"@"},
    {u"mobile", u"手机", 1800, u"@"},
    {u"cname", u"客户名称", 1800, u"@"},
    {u"birth", u"生日", 1350, u"@"},
    {u"phone", u"电话", 1800, u"@"},
    {u"sex", u"性别", 750, u"@"},
    {u"memo", u"备注", 3000, u"@"},
});

constexpr entity_description described{
    .view_no = u"v_customer",
    .id_column = u"cid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存客户信息，请检查！",
            .insert_succeeded = u"成功创建一个客户信息，继续创建吗？ ",
            .record_missing = u"不能修改客户, 记录不存在！",
            .update_failed = u"修改了客户不成功。 ",
            .update_succeeded = u"成功地修改了客户。 ",
            .delete_succeeded = u"成功删除客户",
            .delete_failed = u"不能删除客户",
        },
    .picker_caption = u"客户资料",
    .picker_columns = picker_columns,
};

bool validate(frmCustomer& dialog) {
    return dialog.require(!dialog.record.mobile.trimmed().isEmpty(), u"txtMobile"_s,
                          u"输入的客户信息错误，必须输入手机号码，请检查！  "_s);
}

} // namespace

vc_customer::vc_customer(QMdiArea& windows, const c_customer& access)
    : entity_screen(windows, access, described, validate) {}
