// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFormLayout;
class QHBoxLayout;
class QLineEdit;
class QWidget;

/// A row of a form: a label, the box that it names, and what stands behind the box.
class form_row {
public:
    /// Adds the row to the form. The label also tells whoever cannot see the box what it is for.
    form_row(QFormLayout& form, const QString& label, QWidget* box,
             const QString& label_name = QStringLiteral("lblLabels"));

    /// Puts something behind all that is in the row; the Tab key goes there next.
    void append(QWidget* behind, Qt::Alignment alignment = {}) const;

    [[nodiscard]] QWidget& first_box() const { return *first_box_; }

private:
    QWidget* first_box_;
    QHBoxLayout* line_;
};

/// A row that knows of what kind its box is.
template <class Box>
struct row_with : form_row {
    template <class... Name>
    row_with(QFormLayout& form, const QString& label, Box* first_box, const Name&... label_name)
        : form_row(form, label, first_box, label_name...), box(first_box) {}

    Box* box;
};

/// Adds a row with a line box of this name and text, for dialogs that edit no record.
row_with<QLineEdit> add_line_row(QFormLayout& form, const QString& label_name, const QString& label,
                                 const QString& name, const QString& text = {});
