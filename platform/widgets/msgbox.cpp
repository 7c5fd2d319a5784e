// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/msgbox.h"

#include "platform/widgets/owner_window.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QWindow>

namespace {

bool is_silent = false;

int show(QMessageBox::Icon icon, const QString& text, const QString& title,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton usual) {
    if (is_silent) {
        return QMessageBox::NoButton;
    }
    QMessageBox box(icon, title, text, buttons, owner_window());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(usual);
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
    show(QMessageBox::Information, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void msgbox::critical(const QString& text, const QString& title) {
    show(QMessageBox::Critical, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void msgbox::plain(const QString& text, const QString& title) {
    show(QMessageBox::NoIcon, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

bool msgbox::yes_no(const QString& text, const QString& title, answer usual) {
    return show(QMessageBox::NoIcon, text, title, QMessageBox::Yes | QMessageBox::No,
                usual == answer::yes ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
}

void msgbox::set_silent(bool silent) {
    is_silent = silent;
}
