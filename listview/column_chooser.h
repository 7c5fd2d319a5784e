// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <array>

class QComboBox;
class QFormLayout;
class QRadioButton;
class QVBoxLayout;
class spListHeaders;

/// What the find and the sort dialog share: the choice of a column by its caption and two options.
class column_chooser : public QDialog {
    Q_OBJECT

public:
    bool confirmed = false;
    QString result; ///< what the list window hands to its record set

protected:
    column_chooser(const spListHeaders& headers, const QString& caption,
                   const QString& options_caption, const QString& first_option,
                   const QString& second_option, QWidget* parent);

    /// A labelled row between the column and the options.
    void add_row(const QString& label, QWidget* field);
    void showEvent(QShowEvent* event) override;
    void choose_option(size_t index);
    void choose_column(const QString& key);
    [[nodiscard]] QString chosen_key() const;
    [[nodiscard]] bool is_first_option() const;
    /// The text for the record set, from the chosen column's key.
    [[nodiscard]] virtual QString make_result(const QString& key) const = 0;

private:
    void confirm();

    QComboBox* ComboColName;
    QComboBox* ComboKey; ///< never shown; holds the keys beside the captions
    QFormLayout* form_;
    QWidget* last_field_ = nullptr;
    std::array<QRadioButton*, 2> options_;
};
