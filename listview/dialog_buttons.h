// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QBoxLayout;
class QDialog;
class QPushButton;

/// The two buttons of a dialog, named `cmdok` and `cmdcancel` by the dialog's own spelling.
struct dialog_buttons {
    QPushButton* ok;     ///< the default button
    QPushButton* cancel; ///< rejects the dialog, as Esc does
};

/// Makes the two buttons in a row of their own at the foot of the dialog.
[[nodiscard]] dialog_buttons add_buttons(QDialog& dialog, QBoxLayout& layout,
                                         const QString& ok_caption, const QString& cancel_caption);
