// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_customer.h"
#include "directory/frmCustomer.h"
#include "listview/entity_screen.h"

/// Customers on the screen.
class vc_customer : public entity_screen<c_customer, frmCustomer> {
public:
    explicit vc_customer(QMdiArea& windows);
    [[nodiscard]] std::optional<spListHeaders> Ref() override;

protected:
    [[nodiscard]] std::unique_ptr<frmCustomer> make_dialog() const override;
    [[nodiscard]] bool validate(frmCustomer& dialog) const override;
    [[nodiscard]] bool insert(const m_customer& added) const override;
    [[nodiscard]] bool update(const m_customer& changed) const override;
};
