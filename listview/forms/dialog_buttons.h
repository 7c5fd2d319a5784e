// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;

/// Which two buttons a dialog ends in, by their captions and names.
enum class button_set {
    save,    ///< "保存" and "取消", `cmdok` and `cmdcancel`
    pick,    ///< "确认" and "取消", `cmdok` and `cmdcancel`
    confirm, ///< "确认" and "取消", `cmdOK` and `cmdCancel`
};

/// Makes the two buttons in a row of their own at the foot of the dialog and returns the first one,
/// which is the default button; the other rejects the dialog, as Esc does.
[[nodiscard]] QPushButton* add_buttons(QDialog& dialog, QBoxLayout& layout, button_set wanted);
