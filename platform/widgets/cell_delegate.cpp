// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/cell_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr qsizetype most_painted = 500; // characters; more than the widest column shows
constexpr qsizetype most_told = 2000;   // a tooltip has no scroll bar

/// All of the text is seen in a cell of this size.
bool fits(const QString& text, const QSize& room, const QFontMetrics& metrics) {
    const QRect unbounded(0, 0, room.width(), QWIDGETSIZE_MAX);
    const QSize needed = metrics.boundingRect(unbounded, Qt::TextWordWrap, text).size();
    return text.size() <= most_painted && needed.boundedTo(room) == needed;
}

} // namespace

QString cell_delegate::displayText(const QVariant& value, const QLocale& locale) const {
    return QStyledItemDelegate::displayText(value.toString().left(most_painted), locale);
}

bool cell_delegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                              const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = index.data().toString();
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, view) + 1;
    const QSize room = option.rect.size() - QSize(2 * margin, 0);
    if (fits(text, room, view->fontMetrics())) {
        QToolTip::hideText();
    } else { // made rich text, so that its lines are broken
        QToolTip::showText(event->globalPos(),
                           Qt::convertFromPlainText(text.left(most_told), Qt::WhiteSpaceNormal),
                           view->viewport(), option.rect);
    }
    return true;
}
