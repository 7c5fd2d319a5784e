// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_group.h"
#include "listview/forms/edit_dialog.h"

class vc_in;

/// Puts a customer into a class; both are picked and never typed. The names and the mobile are
/// shown for orientation.
class frmGroup : public edit_dialog {
    Q_OBJECT

public:
    m_group record;

    /// `classes` and `customers` serve the two picker buttons.
    frmGroup(vc_in& classes, vc_in& customers, QWidget* parent = nullptr);
};
