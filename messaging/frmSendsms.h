// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_sendsms.h"
#include "messaging/message_dialog.h"

/// Writes one message: to whom, what, and when.
class frmSendsms : public message_dialog<m_sendsms> {
    Q_OBJECT

public:
    /// `customers` and `phrases` serve the two picker buttons.
    frmSendsms(vc_in& customers, vc_in& phrases, clock_source now, QWidget* parent = nullptr);
};
