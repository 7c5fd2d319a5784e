// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_cusclass.h"
#include "directory/frmCusclass.h"
#include "listview/entity_screen.h"

/// Customer classes on the screen.
class vc_cusclass : public entity_screen<c_cusclass, frmCusclass> {
public:
    explicit vc_cusclass(QMdiArea& windows);
    [[nodiscard]] std::optional<spListHeaders> Ref() override;

protected:
    [[nodiscard]] std::unique_ptr<frmCusclass> make_dialog() const override;
    [[nodiscard]] bool validate(frmCusclass& dialog) const override;
    [[nodiscard]] bool insert(const m_cusclass& added) const override;
    [[nodiscard]] bool update(const m_cusclass& changed) const override;
};
