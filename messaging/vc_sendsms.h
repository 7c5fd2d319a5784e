// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_sendsms.h"
#include "listview/entity_screen.h"
#include "messaging/frmSendsms.h"

/// Single outgoing messages on the screen: written, listed and deleted, not edited.
class vc_sendsms : public entity_writer<c_sendsms, frmSendsms, vc_in&, vc_in&, clock_source> {
public:
    /// `customers` and `phrases` are what the edit dialog picks from.
    vc_sendsms(QMdiArea& windows, const c_sendsms& access, vc_in& customers, vc_in& phrases,
               clock_source now);
};
