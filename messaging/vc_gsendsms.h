// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_gsendsms.h"
#include "listview/entity_screen.h"
#include "messaging/frmGsendsms.h"

/// Group sends on the screen: written, listed and deleted, not edited.
class vc_gsendsms : public entity_writer<c_gsendsms, frmGsendsms, vc_in&, vc_in&, clock_source,
                                         frmGsendsms::addressee_count> {
public:
    /// `classes` and `phrases` are what the edit dialog picks from.
    vc_gsendsms(QMdiArea& windows, const c_gsendsms& access, vc_in& classes, vc_in& phrases,
                clock_source now);

protected:
    /// A long one shows how far it is.
    [[nodiscard]] bool add(const m_gsendsms& added) const override;
};
