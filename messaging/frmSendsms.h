// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/fmtdatetime.h"
#include "data/m_sendsms.h"
#include "listview/edit_dialog.h"

class QLineEdit;
class QPlainTextEdit;
class vc_in;

/// Writes one message: to whom, what, and when.
class frmSendsms : public edit_dialog {
    Q_OBJECT

public:
    m_sendsms record;

    /// `customers` and `phrases` serve the two picker buttons; `now` gives the moment from which a
    /// send time left alone means "at once".
    frmSendsms(vc_in& customers, vc_in& phrases, clock_source now, QWidget* parent = nullptr);

protected:
    void before_load() override;

private:
    void pick_customer();

    vc_in& customers_;
    vc_in& phrases_;
    clock_source now_;
    QLineEdit* txtCid;
    QLineEdit* txtCname;
    QLineEdit* txtMobile;
    QPlainTextEdit* txtSms;
};
