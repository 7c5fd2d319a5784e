// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QTest>
#include <QWidget>

#include <functional>

class QTableView;

/// What a person does in front of the program: looks for a box by its name, types, clicks, and
/// answers the modal dialogs as they come up. A name that is not there fails with the names that
/// are.
namespace person {

/// The visible or hidden child of this type and objectName. Ends the test when there is none.
template <class Widget>
[[nodiscard]] Widget& find(const QWidget& window, const QString& name);

using boxes = QList<std::pair<QString, QString>>; ///< their names, and what goes into them

/// Replaces what stands in a line or text box, as an input method types it; goes down to the text
/// in a list of choices.
void type(const QWidget& window, const QString& name, const QString& text);
void type(const QWidget& window, const boxes& texts);
[[nodiscard]] QString text_of(const QWidget& window, const QString& name);
/// Clicks a button, or a toolbar's button by its key.
void click(const QWidget& window, const QString& name);
/// Clicks a row twice, in its second column.
void double_click(const QTableView& grid, int row);
void press_key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Chooses a menu item that is not greyed.
void choose(const QWidget& window, const QString& name);

// Modal dialogs are answered in the order in which they are expected. A dialog of another kind, or
// none within the watchdog's time, fails the test; everything modal is then closed, so nothing
// hangs.

using answer = std::function<void(QWidget&)>;
void expect_modal(const char* class_name, answer act);

/// When the next modal dialog comes up it must be a `Dialog`; `act` drives it.
template <class Dialog>
void during_modal(std::function<void(Dialog&)> act) {
    expect_modal(Dialog::staticMetaObject.className(),
                 [act = std::move(act)](QWidget& dialog) { act(static_cast<Dialog&>(dialog)); });
}

/// The next modal dialog must be a message box with exactly this title and text; answers it.
void expect_box(const QString& title, const QString& text,
                QMessageBox::StandardButton answer = QMessageBox::Ok,
                QMessageBox::Icon icon = QMessageBox::Information);

/// Every expected dialog has come up; fails the test otherwise, and forgets them.
[[nodiscard]] bool all_answered();

/// Called with every modal dialog before it is answered; for taking pictures.
void set_observer(std::function<void(QWidget&)> observer);

template <class Widget>
Widget& find(const QWidget& window, const QString& name) {
    if (auto* found = window.findChild<Widget*>(name)) {
        return *found;
    }
    window.dumpObjectTree();
    qFatal("no %s \"%s\"", Widget::staticMetaObject.className(), qPrintable(name));
}

} // namespace person
