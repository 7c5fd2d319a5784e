// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/paint_watch.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>

#include <chrono>
#include <stdexcept>

paint_watch::paint_watch(const char* class_name) : class_name_(class_name) {
    QCoreApplication::instance()->installEventFilter(this);
}

void paint_watch::wait() {
    const QDeadlineTimer deadline(std::chrono::seconds(10));
    while (!painted_) {
        if (deadline.hasExpired()) {
            throw std::runtime_error("nothing was painted");
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

bool paint_watch::eventFilter(QObject* watched, QEvent* event) {
    const bool seen = event->type() == QEvent::Paint &&
                      (watched->inherits(class_name_) ||
                       (watched->parent() != nullptr && watched->parent()->inherits(class_name_)));
    if (seen && !painted_) {
        painted_ = true;
        QMetaObject::invokeMethod(this, &paint_watch::painted, Qt::QueuedConnection);
    }
    return false;
}
