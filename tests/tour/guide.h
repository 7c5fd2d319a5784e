// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// Keeps the book of the tour: a number, a picture and a line for every step. What is not as it
/// should be ends the program at once, with a line and a picture that say so.
namespace guide {

/// In every password that is typed on the tour.
inline const QString secret = QStringLiteral("geheim");

enum class frame { screen, front_window };

/// From now on a fatal message or a run that takes too long is a failure too.
void start(const QString& pictures, frame shown);

/// A step is done: everything seen (in the window, then in the database) must read as expected.
/// Saves the screen, or the window in front, as NN-NAME.png and prints a line.
void step(const QString& name, const QString& expected, const QStringList& seen);

/// Goes on when the condition holds.
void wait_for(const QString& what, const std::function<bool()>& condition);

/// Brings a window to the front.
void activate(QWidget& window);
/// A dialog came up: it must take the keyboard and lie in the middle of its owner.
void look_at(QWidget& dialog);

/// No password was shown, read aloud or logged so far, nor lies in a file beside the database.
void check_secret(const QString& data_folder);

[[noreturn]] void fail(const QString& reason);

} // namespace guide
