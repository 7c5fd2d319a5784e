// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/text_box.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

QString text_box::text(const QWidget& box) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&box)) {
        return line->text();
    }
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&box)) {
        // The box's own way to tell its text makes plain blanks of non-breaking ones.
        return lines->document()
            ->toRawText()
            .replace(QChar::ParagraphSeparator, u'\n')
            .replace(QChar::LineSeparator, u'\n');
    }
    return {};
}

void text_box::set_text(QWidget& box, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(&box)) {
        line->setText(text);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&box)) {
        lines->setPlainText(text);
    }
}

void text_box::select_all(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->selectAll();
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) {
        lines->selectAll();
    }
}

void text_box::select_nothing(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->deselect();
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) {
        QTextCursor cursor = lines->textCursor();
        cursor.clearSelection();
        lines->setTextCursor(cursor);
    }
}
