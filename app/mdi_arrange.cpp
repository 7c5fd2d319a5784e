// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/mdi_arrange.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace {

QList<QMdiSubWindow*> windows_of(const QMdiArea& area, bool minimised) {
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : area.subWindowList(QMdiArea::StackingOrder)) {
        if (window->isVisible() && window->isMinimized() == minimised) {
            windows.append(window);
        }
    }
    return windows;
}

/// One above the other or side by side; the last window takes what the division leaves over.
void tile(QMdiArea& area, Qt::Orientation divided) {
    const QList<QMdiSubWindow*> windows = windows_of(area, false);
    const QSize room = area.maximumViewportSize();
    const auto count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        if (divided == Qt::Vertical) {
            const int top = room.height() * i / count;
            windows[i]->setGeometry(0, top, room.width(), room.height() * (i + 1) / count - top);
        } else {
            const int left = room.width() * i / count;
            windows[i]->setGeometry(left, 0, room.width() * (i + 1) / count - left, room.height());
        }
    }
}

/// From the lower left corner to the right, row above row.
void line_up_icons(QMdiArea& area) {
    const QSize room = area.maximumViewportSize();
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow* icon : windows_of(area, true)) {
        if (left > 0 && left + icon->width() > room.width()) {
            left = 0;
            bottom -= icon->height();
        }
        icon->move(left, bottom - icon->height());
        left += icon->width();
    }
}

} // namespace

void arrange(QMdiArea& area, mdi_arrangement arrangement) {
    switch (arrangement) {
    case mdi_arrangement::cascade:
        for (QMdiSubWindow* window : windows_of(area, false)) {
            window->showNormal();
        }
        area.cascadeSubWindows();
        break;
    case mdi_arrangement::tile_horizontal:
        tile(area, Qt::Vertical);
        break;
    case mdi_arrangement::tile_vertical:
        tile(area, Qt::Horizontal);
        break;
    case mdi_arrangement::icons:
        line_up_icons(area);
        break;
    }
}
