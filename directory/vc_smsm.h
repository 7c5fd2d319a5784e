// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_smsm.h"
#include "directory/frmSmsm.h"
#include "listview/entity_screen.h"

/// Phrase templates on the screen.
class vc_smsm : public entity_screen<c_smsm, frmSmsm> {
public:
    explicit vc_smsm(QMdiArea& windows);
    [[nodiscard]] std::optional<spListHeaders> Ref() override;

protected:
    [[nodiscard]] std::unique_ptr<frmSmsm> make_dialog() const override;
    [[nodiscard]] bool validate(frmSmsm& dialog) const override;
    [[nodiscard]] bool insert(const m_smsmodel& added) const override;
    [[nodiscard]] bool update(const m_smsmodel& changed) const override;
};
