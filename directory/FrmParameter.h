// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_parameter.h"
#include "listview/edit_dialog.h"

/// Edits the gateway parameters.
class FrmParameter : public edit_dialog {
    Q_OBJECT

public:
    m_parameter record;

    explicit FrmParameter(QWidget* parent = nullptr);

    /// Says that the parameters are wrong: a port that is no 16-bit number, or a negative one.
    void report_conversion() override;
};
