// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/vc_sendsms.h"

using namespace Qt::StringLiterals;

namespace {

constexpr entity_description described{
    .view_no = u"v_sendsms",
    .id_column = u"smsid",
    .messages =
        {
            .insert_failed = u"输入错误，不能保存短信信息，请检查！",
            .insert_succeeded = u"成功创建一个短信信息，继续创建吗？ ",
            .goes_on = msgbox::answer::no, // some Returns in a row must not send it twice
            .delete_succeeded = u"成功删除短信",
            .delete_failed = u"不能删除短信",
        },
};

bool validate(frmSendsms& dialog) {
    return dialog.require(!dialog.record.sms.trimmed().isEmpty(), u"txtSms"_s,
                          u"输入的短信信息错误，必须输入短信，请检查！  "_s) &&
           dialog.require(!dialog.record.mobile.trimmed().isEmpty(), u"txtMobile"_s,
                          u"输入的短信信息错误，必须输入手机号码，请检查！  "_s);
}

} // namespace

vc_sendsms::vc_sendsms(QMdiArea& windows, const c_sendsms& access, vc_in& customers, vc_in& phrases,
                       clock_source now)
    : entity_writer(windows, access, described, validate, customers, phrases, std::move(now)) {}
