// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_parameter.h"
#include "listview/forms/edit_dialog.h"

/// Edits the gateway parameters.
class FrmParameter : public edit_dialog {
    Q_OBJECT

public:
    m_parameter record;

    explicit FrmParameter(QWidget* parent = nullptr);

    /// Also when the port is a number that no port has.
    [[nodiscard]] QString conversion_refusal() const override;
};
