// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QLineEdit;

/// Asks for the name of a database server and tries to reach it. The name is kept until the next
/// start; the program works on its own file all the same.
class frmserver : public QDialog {
    Q_OBJECT

public:
    bool serverok = false;

    explicit frmserver(QWidget* parent = nullptr);

private:
    void cmdOK_Click();

    QLineEdit* Text1;
};
