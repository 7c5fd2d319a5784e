// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/progress_box.h"

#include "platform/widgets/owner_window.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWindow>

namespace {

/// Long enough for any screen to make room, in milliseconds; a covered one never does.
constexpr int longest_wait = 500;

} // namespace

progress_box::progress_box(const QString& text, qsizetype total)
    : box_(text, {}, 0, static_cast<int>(total), owner_window()) {
    box_.setWindowTitle(QStringLiteral(" "));
    box_.setMinimumWidth(box_.fontMetrics().averageCharWidth() * 50);
    box_.setAutoReset(false);             // the run ends when its caller says so
    box_.setWindowModality(Qt::NonModal); // a modal one would handle events with each report
    box_.setValue(0);
    box_.show();
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(longest_wait);
    while (!box_.windowHandle()->isExposed() && limit.isActive()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    }
    box_.repaint();
}

void progress_box::report(qsizetype done) {
    box_.setValue(static_cast<int>(done));
    box_.repaint();
}
