// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/readable_style.h"

#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <qdrawutil.h>

#include <utility>

namespace {

/// A symbol in the text's colour of the moment: the desktop may turn dark while it is shown.
class symbol_engine : public QIconEngine {
public:
    explicit symbol_engine(QIcon symbol) : symbol_(std::move(symbol)) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture = symbol_.pixmap(size, 1, mode, state);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QGuiApplication::palette().windowText());
        return picture;
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
               QIcon::State state) override {
        painter->drawPixmap(place, pixmap(place.size(), mode, state));
    }

    [[nodiscard]] QIconEngine* clone() const override { return new symbol_engine(*this); }

private:
    QIcon symbol_;
};

bool is_dark(const QPalette& colours) {
    return colours.window().color().lightness() < colours.windowText().color().lightness();
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
        return QIcon(new symbol_engine(std::move(icon)));
    default:
        return icon;
    }
}

int readable_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returned) const {
    if (option != nullptr && is_dark(option->palette)) {
        if (hint == SH_Table_GridLineColor) {
            return static_cast<int>(option->palette.window().color().lighter(150).rgba());
        }
        if (hint == SH_EtchDisabledText) {
            return 0; // a shadow lighter than its text
        }
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

void readable_style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button != nullptr && is_dark(button->palette) &&
        (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
        QStyleOptionButton outlined = *button; // the outline is a darker shade of the window
        outlined.palette.setColor(QPalette::Window, button->palette.windowText().color());
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else if (element == PE_PanelLineEdit && option->state.testFlag(State_ReadOnly)) {
        QStyleOptionFrame plain = *qstyleoption_cast<const QStyleOptionFrame*>(option);
        plain.palette.setBrush(QPalette::Base, plain.palette.window()); // nothing is typed there
        plain.state.setFlag(State_HasFocus, widget != nullptr && widget->focusProxy() == nullptr &&
                                                widget->hasFocus());
        QProxyStyle::drawPrimitive(element, &plain, painter, widget);
    } else if (element == PE_FrameGroupBox && is_dark(option->palette)) {
        painter->save();
        painter->setCompositionMode(QPainter::CompositionMode_Plus); // else a shade on a shade
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        painter->restore();
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    if (element == PE_Frame) { // between 100 % and 200 % it would have lost some of its sides
        const QColor usual = option->palette.window().color().darker(130);
        const bool focused = option->state.testFlag(State_HasFocus);
        qDrawPlainRect(painter, option->rect,
                       focused ? option->palette.highlight().color() : usual);
    }
}

void readable_style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (bar != nullptr && is_dark(bar->palette) && !(bar->titleBarState & State_Active)) {
        QStyleOptionTitleBar light = *bar; // only an active bar has light symbols
        light.titleBarState |= State_Active;
        light.palette.setColor(QPalette::Highlight, bar->palette.window().color());
        QProxyStyle::drawComplexControl(control, &light, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}
