// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmSendsms.h"

#include "listview/vc_in.h"
#include "messaging/message_fields.h"
#include "platform/conversion.h"
#include "platform/guarded.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmSendsms::frmSendsms(vc_in& customers, vc_in& phrases, clock_source now, QWidget* parent)
    : edit_dialog(u"发送一个短信"_s, parent),
      customers_(customers),
      phrases_(phrases),
      now_(std::move(now)) {
    add_number(u"txtsmsID"_s, u"User ID:"_s, record.smsid);
    txtCname = add_line(u"txtCname"_s, u"客户名称："_s, record.cname);
    txtCid = add_number_beside(*txtCname, u"txtCid"_s, u"客户编号"_s, record.cid);
    txtMobile = add_line(u"txtMobile"_s, u"手机号码："_s, record.mobile);
    txtSms = add_text(u"txtSms"_s, u"短信："_s, record.sms);
    add_converted(
        u"txtStime"_s, u"发送时间："_s, [this] { return show_stime(record.stime); },
        [this](const QString& text) {
            record.stime = to_datetime(text);
            record.imsend = record.stime == record.rtime;
        });
    auto* Cmdrefcus = add_picker_button(u"Cmdrefcus"_s, *txtCname, u"选择客户"_s);
    auto* cmdrefsms = add_picker_button(u"cmdrefsms"_s, *txtSms, u"选择常用短语"_s);
    connect(Cmdrefcus, &QPushButton::clicked, this, guarded([this] { pick_customer(); }));
    connect(cmdrefsms, &QPushButton::clicked, this,
            guarded([this] { pick_phrase_into(phrases_, *txtSms); }));
    finish(*txtMobile);
}

void frmSendsms::before_load() {
    record.rtime = now_();
    record.stime = record.rtime;
}

void frmSendsms::pick_customer() {
    const auto picked = customers_.Ref();
    if (!picked || picked->picked(u"cid"_s).isEmpty()) {
        return;
    }
    txtCid->setText(picked->picked(u"cid"_s));
    txtCname->setText(picked->picked(u"cname"_s));
    txtMobile->setText(picked->picked(u"mobile"_s));
}
