// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_group.h"

using namespace Qt::StringLiterals;

namespace {

constexpr entity_description described{
    .view_no = u"v_group",
    .id_column = u"gid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存客户分组信息，请检查！",
            .insert_succeeded = u"成功创建一个客户分组信息，继续创建吗？ ",
            .record_missing = u"不能修改客户分组, 记录不存在！",
            .update_failed = u"修改了客户分组不成功。 ",
            .update_succeeded = u"成功地修改了客户分组。 ",
            .delete_succeeded = u"成功删除客户分组",
            .delete_failed = u"不能删除客户分组",
        },
};

bool validate(frmGroup& dialog) {
    return dialog.require(dialog.record.cid != 0 || dialog.record.ccid != 0, u"txtccID"_s,
                          u"输入的客户分组太长错误，请检查！  "_s);
}

} // namespace

vc_group::vc_group(QMdiArea& windows, const c_group& access, vc_in& classes, vc_in& customers)
    : entity_screen(windows, access, described, validate, classes, customers) {}
