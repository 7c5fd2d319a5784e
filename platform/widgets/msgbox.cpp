// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/msgbox.h"

#include "platform/widgets/owner_window.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMessageBox>
#include <QWindow>

namespace {

bool is_silent = false;

/// Room for the title: most title bars write it in bold, between a symbol and three buttons.
void widen_to_title(QMessageBox& box) {
    QFont bold = box.font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int width = metrics.horizontalAdvance(box.windowTitle()) + 8 * metrics.height();
    auto& layout = *qobject_cast<QGridLayout*>(box.layout());
    layout.addItem(new QSpacerItem(width, 0), layout.rowCount(), 0, 1, layout.columnCount());
}

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
    widen_to_title(box);
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
