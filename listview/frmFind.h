// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/column_chooser.h"

class QLineEdit;

/// Asks for a find criterion, KEY='value', and a direction.
class frmFind : public column_chooser {
    Q_OBJECT

public:
    bool forward = true;

    explicit frmFind(const spListHeaders& headers, QWidget* parent = nullptr);

private:
    [[nodiscard]] QString make_result(const QString& key) const override;

    QLineEdit* txtV;
};
