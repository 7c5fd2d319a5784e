// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_smsmodel.h"
#include "listview/forms/edit_dialog.h"

/// Edits a phrase template.
class frmSmsm : public edit_dialog {
    Q_OBJECT

public:
    m_smsmodel record;

    explicit frmSmsm(QWidget* parent = nullptr);
};
