// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_smsm.h"

#include "listview/frmref.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_phrase = 200; // characters

constexpr entity_messages texts{
    .insert_failed = u"输入错误，不能保存短语信息，请检查！",
    .insert_succeeded = u"成功创建一个短语信息，继续创建吗？ ",
    .record_missing = u"不能修改短语, 记录不存在！",
    .update_failed = u"修改了短语不成功。 ",
    .update_succeeded = u"成功地修改了短语。 ",
    .delete_succeeded = u"成功删除短语",
    .delete_failed = u"不能删除短语",
};

} // namespace

vc_smsm::vc_smsm(QMdiArea& windows) : entity_screen(windows, u"v_smsm", u"mid", texts) {}

std::unique_ptr<frmSmsm> vc_smsm::make_dialog() const {
    return std::make_unique<frmSmsm>(QApplication::activeWindow());
}

bool vc_smsm::validate(frmSmsm& dialog) const {
    if (dialog.record.text.size() > longest_phrase) {
        dialog.refuse(u"txtText"_s, u"输入的短语太长错误，请检查！  "_s);
        return false;
    }
    return true;
}

bool vc_smsm::insert(const m_smsmodel& added) const {
    return records->addrec(added.text);
}

bool vc_smsm::update(const m_smsmodel& changed) const {
    return records->updaterec(changed.text, changed.mid);
}

std::optional<spListHeaders> vc_smsm::Ref() {
    return pick_reference(*this,
                          make_picker_columns(u"常用短语"_s, u"v_smsm"_s,
                                              {{u"text", u"短语", 7500}, {u"mid", u"编号", 900}}));
}
