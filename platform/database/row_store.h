// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QVariant>

#include <string>
#include <vector>

/// The rows of a record set in memory: 16 bytes a cell, all texts in one UTF-8 buffer, so that a
/// list of tens of thousands of rows is read in a few milliseconds and stays small.
class row_store {
public:
    enum class Type : quint8 { null, integer, real, text };

    row_store() = default;
    explicit row_store(QStringList columns) : columns_(std::move(columns)) {}

    [[nodiscard]] const QStringList& columns() const noexcept { return columns_; }
    /// The position of a column by its name without regard to case, or -1.
    [[nodiscard]] qsizetype column(QStringView name) const;
    [[nodiscard]] qsizetype rows() const noexcept;

    // Cells are appended row by row, left to right.
    void append_null();
    void append_integer(qint64 value);
    void append_real(double value);
    void append_text(QByteArrayView utf8);
    /// Appends a row of Nulls.
    void append_row();
    /// Takes the first column out; its values as whole numbers, a row each.
    std::vector<qint64> take_first_column();

    [[nodiscard]] Type type(qsizetype row, qsizetype column) const;
    [[nodiscard]] qint64 integer(qsizetype row, qsizetype column) const;
    [[nodiscard]] double real(qsizetype row, qsizetype column) const;
    /// The bytes of a text cell; valid until the next change.
    [[nodiscard]] QByteArrayView utf8(qsizetype row, qsizetype column) const;
    /// Any cell as text; Null is empty.
    [[nodiscard]] QString text(qsizetype row, qsizetype column) const;
    /// Any cell as a value: qlonglong, double, QString, or an invalid QVariant for Null.
    [[nodiscard]] QVariant value(qsizetype row, qsizetype column) const;

    void set_value(qsizetype row, qsizetype column, const QVariant& value);

private:
    struct cell {
        Type type = Type::null;
        quint32 length = 0;
        qint64 content = 0; ///< the number, a real's bits, or where a text starts in the buffer
    };

    [[nodiscard]] cell make_text(QByteArrayView utf8);
    [[nodiscard]] const cell& at(qsizetype row, qsizetype column) const;

    QStringList columns_;
    std::vector<cell> cells_;
    std::string texts_;
};
