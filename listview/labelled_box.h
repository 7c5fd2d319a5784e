// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFormLayout;
class QLineEdit;
class QWidget;

/// Adds a row of a label and a line box to a form, for dialogs that edit no record. The label,
/// named `label_name`, names the box for whoever cannot see it; `behind` stands behind the box.
QLineEdit* add_labelled_box(QFormLayout& form, const QString& label_name, const QString& label,
                            const QString& name, const QString& text = {},
                            QWidget* behind = nullptr);
