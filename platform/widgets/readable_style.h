// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/// The desktop's style, but for what it draws in black on whatever colour: the arrow behind a tool
/// or menu bar that is too long, the buttons of list windows, the outlines of boxes to tick, the
/// lines of a grid. In a dark window nobody would see them. And a grid or a box of several lines
/// shows by its frame that it has the focus, as the other boxes do; a box that cannot be changed
/// has the colour of its window.
class readable_style : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] QIcon standardIcon(StandardPixmap symbol, const QStyleOption* option,
                                     const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};
