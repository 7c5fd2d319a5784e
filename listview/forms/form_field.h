// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

class QCheckBox;
class QLineEdit;
class QWidget;

/// A box and the field of a record that it shows; both must live as long as this.
class form_field {
public:
    explicit form_field(QWidget& box) : box_(box) {}
    virtual ~form_field() = default;
    Q_DISABLE_COPY_MOVE(form_field)

    /// Puts the field into the box.
    virtual void load() = 0;
    /// Puts the box into the field. Throws DataError for a text that is none of its values.
    virtual void save() = 0;

    [[nodiscard]] QWidget& box() const { return box_; }

private:
    QWidget& box_;
};

/// A text, in a box of one line or of several. Only a changed one is saved: a box normalises line
/// breaks and shortens what is too long for it.
class text_field : public form_field {
public:
    text_field(QWidget& box, QString& field) : form_field(box), field_(field) {}

    void load() override;
    void save() override;

private:
    QString& field_;
    QString shown_;
};

/// How a value becomes the text of a box, and back.
struct box_conversion {
    std::function<QString()> show;
    std::function<void(const QString&)> read; ///< throws DataError for what it cannot read
};

/// A number of 16 bits in decimal.
[[nodiscard]] box_conversion number_of(qint16& field);

/// A value with conversions of its own.
class converted_field : public form_field {
public:
    converted_field(QLineEdit& box, box_conversion conversion);

    void load() override;
    void save() override;

private:
    QLineEdit& line_;
    box_conversion conversion_;
};

/// -1 when the box is checked, else 0; any other number than 0 checks it.
class check_field : public form_field {
public:
    check_field(QCheckBox& box, qint16& field);

    void load() override;
    void save() override;

private:
    QCheckBox& check_;
    qint16& field_;
};
