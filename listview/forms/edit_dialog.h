// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/forms/form_field.h"
#include "listview/forms/form_row.h"

#include <QDialog>

#include <memory>
#include <vector>

class QLabel;
class QPlainTextEdit;

/// The base of every edit dialog: a form of boxes bound to the fields of a record, "保存" and
/// "取消", and the flag that tells the caller which of them was pressed. The dialog only turns one
/// record into another; whoever shows it checks and saves.
class edit_dialog : public QDialog {
    Q_OBJECT

public:
    /// "True" after the save button, "False" otherwise.
    QString okflag;

    /// Shows the dialog modally and waits; true when the operator saved. The record is shown the
    /// first time, and the keyboard is in the first box with all of it selected; later the boxes
    /// keep what was typed, the keyboard stays where it was, and nothing is selected.
    [[nodiscard]] bool ask();
    /// What was typed is saved: the next `ask` begins in the first box again.
    void begin_anew();
    /// Makes the box of this name the first one.
    void begin_in(const QString& box);
    /// Tells why the record cannot be saved, and puts the keyboard into the box that this is about.
    void refuse(const QString& box, const QString& text);
    /// Refuses unless the condition holds, and returns it.
    [[nodiscard]] bool require(bool condition, const QString& box, const QString& text);

protected:
    edit_dialog(const QString& caption, QWidget* parent);

    // Each adds a labelled row; its box is named `name` and bound to `field`, which must live as
    // long as the dialog. A box that the operator leaves alone leaves its field alone.

    row_with<QLineEdit> add_line(const QString& name, const QString& label, QString& field);
    /// A box of several lines.
    row_with<QPlainTextEdit> add_text(const QString& name, const QString& label, QString& field);
    /// A number box; on saving, its text must be a 16-bit number.
    row_with<QLineEdit> add_number(const QString& name, const QString& label, qint16& field);
    /// A box with conversions of its own.
    row_with<QLineEdit> add_converted(const QString& name, const QString& label,
                                      box_conversion conversion);
    /// A check box with a caption of its own.
    row_with<QCheckBox> add_check(const QString& name, const QString& caption, qint16& field);

    /// Adds a narrow box without a label behind the row's; `purpose` is told by a tooltip.
    QLineEdit* add_beside(const form_row& row, const QString& name, const QString& purpose,
                          box_conversion conversion);
    /// Adds a line below the row added last, for a text that is not typed.
    QLabel* add_note(const QString& name, const QString& text = {});
    /// Ends the form with its buttons; called last by the constructor.
    void finish(QWidget& first_box);

    /// Fills record fields that depend on the moment of showing; called before the boxes are
    /// filled.
    virtual void before_load() {}
    /// What the operator is told when a box cannot be converted.
    [[nodiscard]] virtual QString conversion_refusal() const;

private:
    /// Names the box and adds its row.
    template <class Box>
    row_with<Box> add_row(const QString& name, const QString& label, Box* box);
    void load();
    void save();

    QFormLayout* form_;
    std::vector<std::unique_ptr<form_field>> fields_;
    QWidget* first_box_ = nullptr;
    bool loaded_ = false;
    bool begins_ = true; ///< the next `ask` begins in the first box
};
