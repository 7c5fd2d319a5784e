// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/row_dialog.h"

#include "listview/forms/form_row.h"
#include "platform/widgets/data_grid.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QWidget* make_box(const QString& text, bool of_several_lines) {
    if (!of_several_lines) {
        auto* line = new QLineEdit(text);
        line->setReadOnly(true);
        line->setCursorPosition(0);
        return line;
    }
    auto* lines = new QPlainTextEdit(text);
    lines->setObjectName(u"txtFull"_s);
    lines->setReadOnly(true);
    lines->setTabChangesFocus(true);
    return lines;
}

} // namespace

row_dialog::row_dialog(const data_grid& grid, QWidget* parent) : QDialog(parent) {
    const QList<int> columns = grid.shown_columns();
    const QStringList captions = grid.captions(columns);
    const QStringList texts = grid.texts(grid.row(), columns);
    const auto widest =
        std::max_element(columns.begin(), columns.end(), [&grid](int left, int right) {
            return grid.columnWidth(left) < grid.columnWidth(right);
        });
    setWindowTitle(grid.accessibleName());
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addLayout(form);
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const QString label = captions.at(i) + u'：';
        QWidget* box = make_box(texts.at(i), i == widest - columns.begin());
        const form_row row(*form, label, box);
        if (i == widest - columns.begin()) {
            box->setFocus(); // the keys scroll it
        }
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 22);
}
