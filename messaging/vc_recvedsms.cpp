// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/vc_recvedsms.h"

namespace {

constexpr entity_messages texts{
    .delete_succeeded = u"成功删除短信",
    .delete_failed = u"不能删除短信",
};

} // namespace

vc_recvedsms::vc_recvedsms(QMdiArea& windows)
    : entity_list(windows, u"v_recvedsms", u"smsrid", texts) {}
