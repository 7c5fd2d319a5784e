// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/vc_recvedsms.h"

namespace {

constexpr entity_description described{
    .view_no = u"v_recvedsms",
    .id_column = u"smsrid",
    .messages = {.delete_succeeded = u"成功删除短信", .delete_failed = u"不能删除短信"},
};

} // namespace

vc_recvedsms::vc_recvedsms(QMdiArea& windows, const c_recvedsms& access)
    : entity_list(windows, access, described) {}
