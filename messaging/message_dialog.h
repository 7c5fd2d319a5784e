// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/fmtdatetime.h"
#include "listview/forms/edit_dialog.h"
#include "listview/forms/picker_button.h"
#include "listview/forms/text_box.h"
#include "listview/vc_in.h"
#include "messaging/sms_length.h"
#include "platform/conversion.h"

#include <QLabel>
#include <QPlainTextEdit>

/// What the dialogs of single messages and of group sends have in common: the text with its phrase
/// picker, and the send time. A send time left as shown makes the message immediate.
template <class Record>
class message_dialog : public edit_dialog {
public:
    Record record;

protected:
    /// `now` gives the moment that a new message starts from.
    message_dialog(const QString& caption, clock_source now, QWidget* parent)
        : edit_dialog(caption, parent), now_(std::move(now)) {}

    /// Adds the rows of the text and the send time.
    void add_message_rows(vc_in& phrases) {
        const auto sms = add_text(QStringLiteral("txtSms"), QStringLiteral("短信："), record.sms);
        add_picker_button(
            sms, QStringLiteral("cmdrefsms"), QStringLiteral("选择常用短语"),
            [&phrases] { return phrases.Ref(); }, {{sms.box, QStringLiteral("text")}},
            given_up::keeps_them);
        QLabel* lblLength = add_note(QStringLiteral("lblLength"), sms_length::tell({}));
        connect(sms.box, &QPlainTextEdit::textChanged, lblLength, [lblLength, box = sms.box] {
            lblLength->setText(sms_length::tell(text_box::text(*box)));
        });
        add_converted(QStringLiteral("txtStime"), QStringLiteral("发送时间："),
                      {.show = [this] { return show_datetime(record.stime); },
                       .read =
                           [this](const QString& text) {
                               record.stime = typed_datetime(text);
                               record.imsend = record.stime == record.rtime;
                           }});
    }

    void before_load() override {
        record.rtime = now_();
        record.stime = record.rtime;
    }

private:
    clock_source now_;
};
