// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_cusclass.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_name = 50; // characters

constexpr auto picker_columns =
    std::to_array<picker_column>({{u"cname", u"名称", 4500}, {u"ccid", u"编号", 900}});

constexpr entity_description described{
    .view_no = u"v_cusclass",
    .id_column = u"ccid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存客户分类信息，请检查！",
            .insert_succeeded = u"成功创建一个客户分类信息，继续创建吗？ ",
            .record_missing = u"不能修改客户分类, 记录不存在！",
            .update_failed = u"修改了客户分类不成功。 ",
            .update_succeeded = u"成功地修改了客户分类。 ",
            .delete_succeeded = u"成功删除客户分类",
            .delete_failed = u"不能删除客户分类",
        },
    .picker_caption = u"客户分类目录",
    .picker_columns = picker_columns,
};

bool validate(frmCusclass& dialog) {
    return dialog.require(dialog.record.cname.size() <= longest_name, u"txtText"_s,
                          u"输入的客户分类太长错误，请检查！  "_s);
}

} // namespace

vc_cusclass::vc_cusclass(QMdiArea& windows, const c_cusclass& access)
    : entity_screen(windows, access, described, validate) {}
