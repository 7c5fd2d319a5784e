// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/progress_box.h"

#include "platform/widgets/owner_window.h"

#include <QCoreApplication>
#include <QWindow>

progress_box::progress_box(const QString& text) : box_(text, {}, 0, 0, owner_window()) {
    box_.setWindowTitle(QStringLiteral(" "));
    box_.setMinimumWidth(box_.fontMetrics().averageCharWidth() * 50);
    box_.setAutoReset(false); // the run ends when its caller says so
    box_.reset();             // it would come up by itself after a while
}

void progress_box::show(qsizetype done, qsizetype total) {
    box_.setMaximum(static_cast<int>(total));
    box_.setValue(static_cast<int>(done));
    box_.show();
    if (!box_.windowHandle()->isExposed()) { // it comes up when the screen has made room
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers |
                                        QEventLoop::X11ExcludeTimers); // heeded not only there
    }
    box_.repaint();
}
