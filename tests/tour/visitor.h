// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/person.h"

class data_grid;
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
[[nodiscard]] data_grid& front_grid(const frmMain& window);
/// Presses a tool of the list in front.
void press(frmMain& window, const QString& tool);
/// What a grid's rows show in the columns from `first` to `last`, joined by " / ".
[[nodiscard]] QString rows_of(const data_grid& grid, int first, int last, int row = 0);
/// The rows of the list in front from `row` on, the columns behind the key up to `last`.
[[nodiscard]] QString shown(const frmMain& window, int last, int row = 0);
/// The headings of the list in front that are seen.
[[nodiscard]] QString layout_of(const frmMain& window);
/// Where the window stands, who has logged in and what the log-out item says.
[[nodiscard]] QString describe(const frmMain& window);

/// Expects a message box with this title and text, "title|text".
void expect_box(const QString& step, const QString& text,
                QMessageBox::StandardButton answer = QMessageBox::Ok);

/// Expects a dialog, fills its boxes and ends it with the key that confirms.
void expect_dialog(const char* dialog_class, const QString& step, const QString& caption,
                   const person::boxes& texts = {});
/// The same, and the box that tells, as "title|text", that it was saved.
void expect_saving(const char* dialog_class, const QString& step, const QString& caption,
                   const person::boxes& texts, const QString& saved,
                   QMessageBox::StandardButton answer = QMessageBox::No);
/// Expects a dialog that `fill` fills so that these boxes read as `filled`, joined by "|", and the
/// box that tells it was `saved`, from which it goes on to what `next` expects.
void expect_filled(const char* dialog_class, const QString& step, const person::answer& fill,
                   const QStringList& boxes, const QString& filled, const QString& saved,
                   const std::function<void()>& next = {});
/// Clicks a button that opens a picker and takes the first row with a text.
void pick(const QWidget& dialog, const QString& button, const QString& step, const QString& caption,
          const QString& text);
void expect_login(const QString& step, const QString& password,
                  const QString& name = QStringLiteral("valdrine"));
/// A step: the list in front, from a row on, and the database show the same.
void see_rows(const QString& step, const QString& expected, const frmMain& window, int last,
              const QString& statement, int row = 0);

} // namespace visitor
