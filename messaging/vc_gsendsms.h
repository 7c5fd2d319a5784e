// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_gsendsms.h"
#include "data/fmtdatetime.h"
#include "listview/entity_screen.h"
#include "messaging/frmGsendsms.h"

/// Group sends on the screen: written, listed and deleted, not edited.
class vc_gsendsms : public entity_screen<c_gsendsms, frmGsendsms> {
public:
    /// `classes` and `phrases` are what the edit dialog picks from.
    vc_gsendsms(QMdiArea& windows, vc_in& classes, vc_in& phrases);
    bool modifyrec(qint16 /*id*/) override { return false; }
    [[nodiscard]] bool can(entity_command command) const override {
        return command != entity_command::modify;
    }

protected:
    [[nodiscard]] std::unique_ptr<frmGsendsms> make_dialog() const override;
    [[nodiscard]] bool validate(frmGsendsms& dialog) const override;
    [[nodiscard]] bool insert(const m_gsendsms& added) const override;
    [[nodiscard]] bool update(const m_gsendsms& /*changed*/) const override { return false; }

private:
    vc_in& classes_;
    vc_in& phrases_;
};
