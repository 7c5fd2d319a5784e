// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/list_follower.h"

#include "listview/frmdatagrid.h"
#include "platform/guarded.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

#include <utility>

namespace {

constexpr int pause_ms = 1000;

bool is_in_use() {
    return QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr ||
           QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

list_follower::list_follower(const QMdiArea& windows, QObject* parent)
    : QObject(parent), windows_(windows), pause_(this) {
    pause_.setObjectName(QStringLiteral("pause"));
    pause_.setInterval(pause_ms);
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, guarded([this] { follow(); }));
}

void list_follower::note(const vc_in& controller) {
    changed_.insert(&controller);
    if (!pause_.isActive()) {
        pause_.start();
    }
}

void list_follower::follow() {
    if (is_in_use()) {
        pause_.start();
        return;
    }
    const QSet<const vc_in*> changed = std::exchange(changed_, {});
    QList<QPointer<frmdatagrid>> lists; // one that tells of an error may see others closed
    for (const QMdiSubWindow* window : windows_.subWindowList()) {
        lists.append(qobject_cast<frmdatagrid*>(window->widget()));
    }
    for (const QPointer<frmdatagrid>& list : lists) {
        if (list != nullptr && changed.contains(&list->controller())) {
            list->follow();
        }
    }
}
