// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/operation_log.h"

#include <QDialog>

class QLineEdit;
class vc_in;

/// Asks which rows of the operation log to show: of which operator, from when to when.
class frmconduser : public QDialog {
    Q_OBJECT

public:
    bool confirmed = false;
    operation_condition condition;

    /// Shows `shown`; `operators` serves the picker button.
    frmconduser(operation_condition shown, vc_in& operators, QWidget* parent = nullptr);

private:
    void filltext();
    /// Reads the boxes. Throws DataError when a date or the number cannot be read.
    void fillcond();

    QLineEdit* txtuserid;
    QLineEdit* txtsdate;
    QLineEdit* txtedate;
};
