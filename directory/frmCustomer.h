// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_customer.h"
#include "listview/forms/edit_dialog.h"

/// Edits a customer.
class frmCustomer : public edit_dialog {
    Q_OBJECT

public:
    m_customer record;

    explicit frmCustomer(QWidget* parent = nullptr);
};
