// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_cusclass.h"
#include "listview/forms/edit_dialog.h"

/// Edits a customer class.
class frmCusclass : public edit_dialog {
    Q_OBJECT

public:
    m_cusclass record;

    explicit frmCusclass(QWidget* parent = nullptr);
};
