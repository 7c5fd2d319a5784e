// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/entity_loops.h"

#include "listview/forms/edit_dialog.h"

using namespace Qt::StringLiterals;

namespace {

void tell_failure(QStringView text, const QString& title) {
    if (!text.isEmpty()) {
        msgbox::information(text.toString(), title);
    }
}

} // namespace

bool add_loop(edit_dialog& dialog, const entity_messages& messages, const record_step& check,
              const record_step& insert) {
    while (dialog.ask()) {
        if (!check()) {
            continue;
        }
        if (!insert()) {
            tell_failure(messages.insert_failed, u"不能保存 "_s);
        } else if (msgbox::yes_no(messages.insert_succeeded.toString(),
                                  messages.insert_succeeded_title.toString(), messages.goes_on)) {
            dialog.begin_anew();
        } else {
            return true;
        }
    }
    return false;
}

bool edit_loop(edit_dialog& dialog, const entity_messages& messages, const record_step& check,
               const record_step& update) {
    while (dialog.ask()) {
        if (!check()) {
            continue;
        }
        if (update()) {
            msgbox::information(messages.update_succeeded.toString(), u"保存成功"_s);
            return true;
        }
        tell_failure(messages.update_failed, u"不成功"_s);
    }
    return false;
}

void report_missing(const entity_messages& messages) {
    msgbox::information(messages.record_missing.toString(), u"修改"_s);
}

bool report_deletion(const entity_messages& messages, bool deleted) {
    if (deleted) {
        msgbox::information(messages.delete_succeeded.toString(), u"删除成功"_s);
    } else {
        msgbox::information(messages.delete_failed.toString(), u"不能删除"_s);
    }
    return deleted;
}
