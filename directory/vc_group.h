// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_group.h"
#include "directory/frmGroup.h"
#include "listview/entity_screen.h"

/// Memberships of customers in classes on the screen.
class vc_group : public entity_screen<c_group, frmGroup> {
public:
    /// `classes` and `customers` are what the edit dialog picks from.
    vc_group(QMdiArea& windows, vc_in& classes, vc_in& customers);

protected:
    [[nodiscard]] std::unique_ptr<frmGroup> make_dialog() const override;
    [[nodiscard]] bool validate(frmGroup& dialog) const override;
    [[nodiscard]] bool insert(const m_group& added) const override;
    [[nodiscard]] bool update(const m_group& changed) const override;

private:
    vc_in& classes_;
    vc_in& customers_;
};
