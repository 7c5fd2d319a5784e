// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QStringList>

class DataGrid;
class frmMain;
class frmdatagrid;

/// What the visitor of the tour does and reads in the program; every dialog and box that comes up
/// is a step.
namespace visitor {

/// The rows that the database gives, joined by " / ".
[[nodiscard]] QString stored(const QString& statement);

/// Chooses a menu item with the mouse; the open menu may be a step.
void choose(frmMain& window, const QString& menu, const QString& item, const QString& step = {});
[[nodiscard]] frmdatagrid& front_list(const frmMain& window);
[[nodiscard]] DataGrid& front_grid(const frmMain& window);
/// Presses a tool of the list in front.
void press(frmMain& window, const QString& tool);
/// The rows of the list in front from `row` on, the columns behind the key up to `last`.
[[nodiscard]] QString shown(const frmMain& window, int last, int row = 0);
/// The headings of the list in front that are seen.
[[nodiscard]] QString layout_of(const frmMain& window);
/// Where the window stands, who has logged in and what the log-out item says.
[[nodiscard]] QString describe(const frmMain& window);

/// Expects a message box with this title and text, "title|text".
void expect_box(const QString& step, const QString& text,
                QMessageBox::StandardButton answer = QMessageBox::Ok);

using typed = QList<std::pair<QString, QString>>; ///< the names of boxes and what goes into them
/// Expects a dialog, fills its boxes and ends it with the key that confirms.
void expect_dialog(const char* dialog_class, const QString& step, const QString& caption,
                   const typed& texts = {});
/// Expects a picker and takes the row so many below the first.
void expect_pick(const QString& step, const QString& caption, int downs = 0);
void expect_login(const QString& step, const QString& password, const QString& name = {});

} // namespace visitor
