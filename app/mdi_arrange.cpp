// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/mdi_arrange.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

#include <algorithm>

namespace {

/// The icons as they were opened, the others with the one in front last.
QList<QMdiSubWindow*> windows_of(const QMdiArea& area, bool minimised) {
    QList<QMdiSubWindow*> windows;
    const auto order = minimised ? QMdiArea::CreationOrder : QMdiArea::StackingOrder;
    for (QMdiSubWindow* window : area.subWindowList(order)) {
        if (window->isVisible() && window->isMinimized() == minimised) {
            windows.append(window);
        }
    }
    return windows;
}

/// From the lower left corner to the right, row above row; in front of the other windows. What room
/// is left above them.
QSize line_up_icons(const QMdiArea& area) {
    const QSize room = area.maximumViewportSize();
    int left = 0;
    int bottom = room.height();
    int top = bottom;
    for (QMdiSubWindow* icon : windows_of(area, true)) {
        if (left > 0 && left + icon->width() > room.width()) {
            left = 0;
            bottom = top;
        }
        top = bottom - icon->height();
        icon->move(left, top);
        icon->raise();
        left += icon->width();
    }
    return {room.width(), top};
}

/// One above the other or side by side; the last window takes what the division leaves over.
void tile(const QMdiArea& area, Qt::Orientation divided) {
    const QList<QMdiSubWindow*> windows = windows_of(area, false);
    const QSize room = line_up_icons(area);
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

/// Each a title bar further down and to the right, the one in front last; after as many as there is
/// room for, from the corner again.
void cascade(const QMdiArea& area) {
    const QSize room = line_up_icons(area);
    const QSize size = room * 3 / 4;
    const int step = area.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int places =
        qMax(1, qMin(room.width() - size.width(), room.height() - size.height()) / step + 1);
    int place = 0;
    for (QMdiSubWindow* window : windows_of(area, false)) {
        window->showNormal();
        const int shift = place++ % places * step;
        window->setGeometry({{shift, shift}, size});
    }
}

} // namespace

void arrange(const QMdiArea& area, mdi_arrangement arrangement) {
    switch (arrangement) {
    case mdi_arrangement::cascade:
        cascade(area);
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
