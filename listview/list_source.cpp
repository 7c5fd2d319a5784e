// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/list_source.h"

#include "data/fmtdatetime.h"
#include "listview/frmconduser.h"
#include "listview/vc_in.h"
#include "platform/widgets/owner_window.h"

#include <utility>

list_source::list_source(vc_in& controller, QString view_no)
    : controller_(controller), view_no_(std::move(view_no)) {}

void list_source::reset_condition() {
    const QDate today = system_clock().date();
    condition_ = {.userid = 0, .start = today.startOfDay(), .end = today.endOfDay()};
}

void list_source::ask_condition(spListHeaders& headers) {
    if (!is_operation_log()) {
        return;
    }
    frmconduser dialog(condition_, controller_, owner_window());
    dialog.exec();
    if (dialog.confirmed) {
        condition_ = dialog.condition;
    }
    store_condition(headers, condition_);
}

void list_source::open(const spListHeaders& headers, Recordset& rows) const {
    if (is_operation_log()) {
        open_operation_log(headers, rows);
    } else {
        controller_.openrs(rows);
    }
}
