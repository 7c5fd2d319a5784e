// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QLineEdit;

/// Looks the operator up and, when found, loads him into the session user.
class frmLogin : public QDialog {
    Q_OBJECT

public:
    /// The operator is logged in.
    bool loginok = false;
    /// The database could not be asked; the error was shown, and the program must end.
    bool failed = false;

    explicit frmLogin(QWidget* parent = nullptr);

private:
    void cmdOK_Click();
    void log_in();

    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
};
