// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class data_grid;

/// Shows the marked row of a grid to be read and copied: a box a column, the widest column's of
/// several lines.
class row_dialog : public QDialog {
    Q_OBJECT

public:
    explicit row_dialog(const data_grid& grid, QWidget* parent = nullptr);
};
