// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_customer.h"
#include "directory/frmCustomer.h"
#include "listview/entity_screen.h"

/// Customers on the screen.
class vc_customer : public entity_screen<c_customer, frmCustomer> {
public:
    vc_customer(QMdiArea& windows, const c_customer& access);
};
