// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_sendsms.h"
#include "listview/entity_screen.h"
#include "messaging/frmSendsms.h"

/// Single outgoing messages on the screen: written, listed and deleted, not edited.
class vc_sendsms : public entity_screen<c_sendsms, frmSendsms> {
public:
    /// `customers` and `phrases` are what the edit dialog picks from.
    vc_sendsms(QMdiArea& windows, vc_in& customers, vc_in& phrases);
    bool modifyrec(qint16 /*id*/) override { return false; }
    [[nodiscard]] bool can(entity_command command) const override {
        return command != entity_command::modify;
    }

protected:
    [[nodiscard]] std::unique_ptr<frmSendsms> make_dialog() const override;
    [[nodiscard]] bool validate(frmSendsms& dialog) const override;
    [[nodiscard]] bool insert(const m_sendsms& added) const override;
    [[nodiscard]] bool update(const m_sendsms& /*changed*/) const override { return false; }

private:
    vc_in& customers_;
    vc_in& phrases_;
};
