// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

/// A box of one line and a box of several under one set of names; every other box has no text.
namespace text_box {

[[nodiscard]] QString text(const QWidget& box);
void set_text(QWidget& box, const QString& text);
void select_all(QWidget* box);
void select_nothing(QWidget* box);

} // namespace text_box
