// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_cusclass.h"

#include "listview/frmref.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_name = 50; // characters

constexpr entity_messages texts{
    .insert_failed = u"输入错误，不能保存客户分类信息，请检查！",
    .insert_succeeded = u"成功创建一个客户分类信息，继续创建吗？ ",
    .record_missing = u"不能修改客户分类, 记录不存在！",
    .update_failed = u"修改了客户分类不成功。 ",
    .update_succeeded = u"成功地修改了客户分类。 ",
    .delete_succeeded = u"成功删除客户分类",
    .delete_failed = u"不能删除客户分类",
};

} // namespace

vc_cusclass::vc_cusclass(QMdiArea& windows)
    : entity_screen(windows, u"v_cusclass", u"ccid", texts) {}

std::unique_ptr<frmCusclass> vc_cusclass::make_dialog() const {
    return std::make_unique<frmCusclass>(QApplication::activeWindow());
}

bool vc_cusclass::validate(frmCusclass& dialog) const {
    if (dialog.record.cname.size() > longest_name) {
        dialog.refuse(u"txtText"_s, u"输入的客户分类太长错误，请检查！  "_s);
        return false;
    }
    return true;
}

bool vc_cusclass::insert(const m_cusclass& added) const {
    return records->addrec(added.cname);
}

bool vc_cusclass::update(const m_cusclass& changed) const {
    return records->updaterec(changed.cname, changed.ccid);
}

std::optional<spListHeaders> vc_cusclass::Ref() {
    return pick_reference(
        *this, make_picker_columns(u"客户分类目录"_s, u"v_cusclass"_s,
                                   {{u"cname", u"名称", 4500}, {u"ccid", u"编号", 900}}));
}
