// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/column_chooser.h"

/// Asks for a sort order: KEY + " DESC" or KEY + " ASC ".
class frmSort : public column_chooser {
    Q_OBJECT

public:
    explicit frmSort(const spListHeaders& headers, QWidget* parent = nullptr);

private:
    [[nodiscard]] QString make_result(const QString& key) const override;
};
