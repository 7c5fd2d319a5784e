// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/vc_gsendsms.h"

#include "platform/widgets/progress_box.h"
#include "platform/widgets/wait_cursor.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype long_run = 2000; // messages; fewer are written before a box could be read

constexpr entity_description described{
    .view_no = u"v_gsendsms",
    .id_column = u"gsid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存短信发送信息，请检查！",
            .insert_succeeded = u"成功创建一个短信发送信息，继续创建吗？ ",
            .goes_on = msgbox::answer::no, // some Returns in a row must not send it twice
            .delete_succeeded = u"成功删除短信发送",
            .delete_failed = u"不能删除短信发送",
        },
};

bool validate(frmGsendsms& dialog) {
    return dialog.require(!dialog.record.sms.trimmed().isEmpty(), u"txtSms"_s,
                          u"输入的短信发送信息错误，必须输入短信，请检查！  "_s);
}

} // namespace

vc_gsendsms::vc_gsendsms(QMdiArea& windows, const c_gsendsms& access, vc_in& classes,
                         vc_in& phrases, clock_source now)
    : entity_writer(
          windows, access, described, validate, classes, phrases, std::move(now),
          [&access](qint16 cid, qint16 isall) { return access.count_addressees(cid, isall); }) {}

bool vc_gsendsms::add(const m_gsendsms& added) const {
    const wait_cursor waiting;
    std::optional<progress_box> box;
    if (const qint32 total = records.count_addressees(added.cid, added.isall).value_or(0);
        total > long_run) {
        box.emplace(u"正在写入短信，请稍候……"_s, total);
    }
    return records.add(added, [&box](qsizetype done) {
        if (box) {
            box->report(done);
        }
    });
}
