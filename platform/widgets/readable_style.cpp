// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/readable_style.h"

#include <QGuiApplication>
#include <QPainter>

namespace {

QIcon in_text_colour(const QIcon& symbol) {
    QIcon coloured;
    for (const QSize& size : symbol.availableSizes()) {
        QPixmap picture = symbol.pixmap(size);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QGuiApplication::palette().windowText());
        painter.end();
        coloured.addPixmap(picture);
    }
    return coloured;
}

} // namespace

QIcon readable_style::standardIcon(StandardPixmap symbol, const QStyleOption* option,
                                   const QWidget* widget) const {
    QIcon icon = QProxyStyle::standardIcon(symbol, option, widget);
    switch (symbol) {
    case SP_ToolBarHorizontalExtensionButton:
    case SP_ToolBarVerticalExtensionButton:
    case SP_TitleBarMinButton:
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton:
        return in_text_colour(icon);
    default:
        return icon;
    }
}
