// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Modal message boxes; the only way by which the system speaks to the operator. Texts are shown as
/// plain text to the letter.
namespace msgbox {

/// Information symbol, OK.
void information(const QString& text, const QString& title);
/// Stop symbol, OK.
void critical(const QString& text, const QString& title);
/// No symbol, OK.
void plain(const QString& text, const QString& title);
/// No symbol, Yes and No; true for Yes. Enter gives the `usual` answer.
enum class answer { yes, no };
[[nodiscard]] bool yes_no(const QString& text, const QString& title, answer usual = answer::yes);

/// Shows no box from now on, as befits a program without a window; a question is answered with No.
void set_silent(bool silent);

} // namespace msgbox
