// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/vc_sendsms.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr entity_messages texts{
    .insert_failed = u"输入错误，不能保存短信信息，请检查！",
    .insert_succeeded = u"成功创建一个短信信息，继续创建吗？ ",
    .goes_on = msgbox::answer::no, // some Returns in a row must not send it twice
    .delete_succeeded = u"成功删除短信",
    .delete_failed = u"不能删除短信",
};

} // namespace

vc_sendsms::vc_sendsms(QMdiArea& windows, vc_in& customers, vc_in& phrases)
    : entity_screen(windows, u"v_sendsms", u"smsid", texts),
      customers_(customers),
      phrases_(phrases) {}

std::unique_ptr<frmSendsms> vc_sendsms::make_dialog() const {
    return std::make_unique<frmSendsms>(customers_, phrases_, records->now,
                                        QApplication::activeWindow());
}

bool vc_sendsms::validate(frmSendsms& dialog) const {
    if (dialog.record.sms.trimmed().isEmpty()) {
        dialog.refuse(u"txtSms"_s, u"输入的短信信息错误，必须输入短信，请检查！  "_s);
        return false;
    }
    if (dialog.record.mobile.trimmed().isEmpty()) {
        dialog.refuse(u"txtMobile"_s, u"输入的短信信息错误，必须输入手机号码，请检查！  "_s);
        return false;
    }
    return true;
}

bool vc_sendsms::insert(const m_sendsms& added) const {
    return records->addrec(added.mobile, added.cid, added.sms, false, added.rtime, added.stime,
                           added.smsfrom, added.imsend);
}
