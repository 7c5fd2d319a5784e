// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/vc_parameter.h"

#include "directory/FrmParameter.h"
#include "listview/forms/entity_loops.h"
#include "platform/widgets/owner_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr entity_messages texts{
    .record_missing = u"不能修改参数, 记录不存在！",
    .update_failed = u"修改参数不成功。 ",
    .update_succeeded = u"成功地修改了参数。 ",
};

/// The port is a 16-bit number, so only the lower bound can ever refuse one.
bool validate(FrmParameter& dialog) {
    const int port = dialog.record.port;
    return dialog.require(port >= 0 && port <= 65535, u"txtport"_s, dialog.conversion_refusal());
}

} // namespace

bool vc_parameter::modifyrec(qint16 /*id*/) {
    const auto found = records.getrec();
    if (!found) {
        report_missing(texts);
        return false;
    }
    FrmParameter dialog(owner_window());
    dialog.record = *found;
    return edit_loop(
        dialog, texts, [&] { return validate(dialog); },
        [&] { return records.update(dialog.record); });
}
