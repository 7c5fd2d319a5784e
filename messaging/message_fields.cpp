// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/message_fields.h"

#include "listview/vc_in.h"

using namespace Qt::StringLiterals;

QString show_stime(const QDateTime& stime) {
    return stime.toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

void pick_phrase_into(vc_in& phrases, QPlainTextEdit& box) {
    const auto picked = phrases.Ref();
    if (picked && !picked->picked(u"mid"_s).isEmpty()) {
        box.setPlainText(picked->picked(u"text"_s));
    }
}
