// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/forms/edit_dialog.h"
#include "operators/user.h"

/// Edits an operator; the id is shown and not edited, the passwords are masked.
class frmuser : public edit_dialog {
    Q_OBJECT

public:
    user record;

    explicit frmuser(QWidget* parent = nullptr);
};
