// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/widgets/msgbox.h"

#include <QStringView>

#include <functional>

class edit_dialog;

/// What an entity's screens say, as far as they can do it. A failure without a text is told by the
/// step that failed.
struct entity_messages {
    QStringView insert_failed = {};
    QStringView insert_succeeded = {}; ///< asks whether to go on
    QStringView insert_succeeded_title = u"保存成功";
    msgbox::answer goes_on = msgbox::answer::yes; ///< what Enter answers to that
    QStringView record_missing = {};
    QStringView update_failed = {};
    QStringView update_succeeded = {};
    QStringView delete_succeeded = {};
    QStringView delete_failed = {};
};

/// A step of a loop on the dialog's record: its check (which shows its own message) or its storing.
using record_step = std::function<bool()>;

/// Asks for records and inserts them until the operator stops. True when the operator answered No
/// after a saved record, false when the dialog was cancelled.
[[nodiscard]] bool add_loop(edit_dialog& dialog, const entity_messages& messages,
                            const record_step& check, const record_step& insert);

/// Edits the dialog's record until it is saved (true) or the dialog is cancelled.
[[nodiscard]] bool edit_loop(edit_dialog& dialog, const entity_messages& messages,
                             const record_step& check, const record_step& update);

/// Says that the record to edit is missing.
void report_missing(const entity_messages& messages);

/// Says whether a deletion succeeded, and returns it.
bool report_deletion(const entity_messages& messages, bool deleted);
