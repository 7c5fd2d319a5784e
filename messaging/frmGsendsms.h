// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_gsendsms.h"
#include "messaging/message_dialog.h"

class QLineEdit;

/// Writes a group send: to which class or to all, what, and when.
class frmGsendsms : public message_dialog<m_gsendsms> {
    Q_OBJECT

public:
    /// `classes` and `phrases` serve the two picker buttons.
    frmGsendsms(vc_in& classes, vc_in& phrases, clock_source now, QWidget* parent = nullptr);

private:
    void pick_class(vc_in& classes);

    QLineEdit* txtCid;
    QLineEdit* txtCname;
};
