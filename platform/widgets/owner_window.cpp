// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/owner_window.h"

#include <QApplication>
#include <QWidget>

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
