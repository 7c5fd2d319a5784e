// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_smsm.h"
#include "directory/frmSmsm.h"
#include "listview/entity_screen.h"

/// Phrase templates on the screen.
class vc_smsm : public entity_screen<c_smsm, frmSmsm> {
public:
    vc_smsm(QMdiArea& windows, const c_smsm& access);
};
