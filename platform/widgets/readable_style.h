// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/// The desktop's style, but for the symbols that it draws in black on whatever colour: the arrow
/// behind a tool or menu bar that is too long, and the buttons of a maximised list window. In a
/// dark window nobody would see them.
class readable_style : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] QIcon standardIcon(StandardPixmap symbol, const QStyleOption* option,
                                     const QWidget* widget) const override;
};
