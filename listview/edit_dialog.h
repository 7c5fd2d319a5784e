// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class QCheckBox;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

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

protected:
    edit_dialog(const QString& caption, QWidget* parent);

    // Each adds a labelled row; its box is named `name` and bound to `field`, which must live as
    // long as the dialog. A box that the operator leaves alone leaves its field alone.

    /// A number box; on saving, its text must be a 16-bit number.
    QLineEdit* add_number(const QString& name, const QString& label, qint16& field);
    QLineEdit* add_line(const QString& name, const QString& label, QString& field);
    /// A box of several lines.
    QPlainTextEdit* add_text(const QString& name, const QString& label, QString& field);
    /// A line below the row added last, for a text that is not typed.
    QLabel* add_note(const QString& name, const QString& text = {});
    /// The same for what `tell` makes of a box's text.
    void add_note(const QString& name, const QPlainTextEdit& box,
                  std::function<QString(const QString&)> tell);
    /// A check box with a caption of its own; checked is -1, else 0.
    QCheckBox* add_check(const QString& name, const QString& caption, qint16& field);
    /// A box with conversions of its own; `save` throws DataError for a text that it cannot read.
    QLineEdit* add_converted(const QString& name, const QString& label,
                             std::function<QString()> load,
                             std::function<void(const QString&)> save);

    // Narrow boxes without a label, behind another box; `purpose` is told by a tooltip.
    QLineEdit* add_number_beside(QWidget& box, const QString& name, const QString& purpose,
                                 qint16& field);
    QLineEdit* add_converted_beside(QWidget& box, const QString& name, const QString& purpose,
                                    std::function<QString()> load,
                                    std::function<void(const QString&)> save);

    /// Puts a small button "…" behind a box that `pick` fills. Afterwards the box has the focus.
    QPushButton* add_picker_button(const QString& name, QWidget& box, const QString& purpose,
                                   const std::function<void()>& pick);
    /// Nothing is typed into these boxes: the button fills them, and has the keyboard in their
    /// place.
    static void leave_to(QPushButton* button, std::initializer_list<QLineEdit*> boxes);
    /// Ends the form with its buttons; called last by the constructor.
    void finish(QWidget& first_box);

    /// Fills record fields that depend on the moment of showing; called before the boxes are
    /// filled.
    virtual void before_load() {}
    /// What the operator is told when a box cannot be converted.
    [[nodiscard]] virtual QString conversion_refusal() const;

private:
    struct binding {
        QWidget* box;
        std::function<void()> load;
        std::function<void()> save;
    };

    void add_row(const QString& name, const QString& label, QWidget* box);
    QLineEdit* bind_line(std::function<QString()> load, std::function<void(const QString&)> save);
    [[nodiscard]] QHBoxLayout& row_of(const QWidget& box) const;
    void load();
    void save();

    QFormLayout* form_;
    std::vector<binding> bindings_;
    QWidget* first_box_ = nullptr;
    bool loaded_ = false;
    bool begins_ = true; ///< the next `ask` begins in the first box
};
