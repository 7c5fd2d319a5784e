// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_group.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr entity_messages texts{
    .insert_failed = u"输入错误，不能保存客户分组信息，请检查！",
    .insert_succeeded = u"成功创建一个客户分组信息，继续创建吗？ ",
    .record_missing = u"不能修改客户分组, 记录不存在！",
    .update_failed = u"修改了客户分组不成功。 ",
    .update_succeeded = u"成功地修改了客户分组。 ",
    .delete_succeeded = u"成功删除客户分组",
    .delete_failed = u"不能删除客户分组",
};

} // namespace

vc_group::vc_group(QMdiArea& windows, vc_in& classes, vc_in& customers)
    : entity_screen(windows, u"v_group", u"gid", texts), classes_(classes), customers_(customers) {}

std::unique_ptr<frmGroup> vc_group::make_dialog() const {
    return std::make_unique<frmGroup>(classes_, customers_, QApplication::activeWindow());
}

bool vc_group::validate(frmGroup& dialog) const {
    if (dialog.record.cid == 0 && dialog.record.ccid == 0) {
        dialog.refuse(u"txtccID"_s, u"输入的客户分组太长错误，请检查！  "_s);
        return false;
    }
    return true;
}

bool vc_group::insert(const m_group& added) const {
    return records->addrec(added.cid, added.ccid);
}

bool vc_group::update(const m_group& changed) const {
    return records->updaterec(changed.gid, changed.cid, changed.ccid);
}
