// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_smsm.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_phrase = 200; // characters

constexpr auto picker_columns =
    std::to_array<picker_column>({{u"text", u"短语", 7500}, {u"mid", u"编号", 900}});

constexpr entity_description described{
    .view_no = u"v_smsm",
    .id_column = u"mid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存短语信息，请检查！",
            .insert_succeeded = u"成功创建一个短语信息，继续创建吗？ ",
            .record_missing = u"不能修改短语, 记录不存在！",
            .update_failed = u"修改了短语不成功。 ",
            .update_succeeded = u"成功地修改了短语。 ",
            .delete_succeeded = u"成功删除短语",
            .delete_failed = u"不能删除短语",
        },
    .picker_caption = u"常用短语",
    .picker_columns = picker_columns,
};

bool validate(frmSmsm& dialog) {
    return dialog.require(dialog.record.text.size() <= longest_phrase, u"txtText"_s,
                          u"输入的短语太长错误，请检查！  "_s);
}

} // namespace

vc_smsm::vc_smsm(QMdiArea& windows, const c_smsm& access)
    : entity_screen(windows, access, described, validate) {}
