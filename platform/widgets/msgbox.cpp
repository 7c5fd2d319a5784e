// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/msgbox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QWindow>

namespace {

/// The window that the operator works in; a box without one would open in a corner of its own.
QWidget* owner_window() {
    // An edit dialog has just hidden itself when its outcome is told: then the window behind it.
    for (QWidget* window = QApplication::activeWindow(); window != nullptr;
         window = window->parentWidget()) {
        if (window->isVisible()) {
            return window->window();
        }
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

int show(QMessageBox::Icon icon, const QString& text, const QString& title,
         QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, text, buttons, owner_window());
    box.setTextFormat(Qt::PlainText);
    for (QAbstractButton* button : box.buttons()) {
        button->setIcon({}); // the buttons of the dialogs have none either
    }
    if (title.isEmpty()) { // the title bar would show the program's file name
        box.winId();
        box.windowHandle()->setTitle(QStringLiteral(" "));
    }
    return box.exec();
}

} // namespace

void msgbox::information(const QString& text, const QString& title) {
    show(QMessageBox::Information, text, title, QMessageBox::Ok);
}

void msgbox::critical(const QString& text, const QString& title) {
    show(QMessageBox::Critical, text, title, QMessageBox::Ok);
}

void msgbox::plain(const QString& text, const QString& title) {
    show(QMessageBox::NoIcon, text, title, QMessageBox::Ok);
}

bool msgbox::yes_no(const QString& text, const QString& title) {
    return show(QMessageBox::NoIcon, text, title, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}
