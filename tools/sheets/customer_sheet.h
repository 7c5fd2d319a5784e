// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMap>
#include <QStringList>

/// What a customer's line of a spreadsheet says.
struct customer_line {
    qint64 number = 0;             ///< of the line in its file
    QMap<QString, QString> values; ///< by column of the table `customer`; none for an empty field;
                                   ///< the mobile number as it is dialled
};

/// The customers in a spreadsheet, and what there is to tell about it.
struct customer_sheet {
    QList<customer_line> customers;
    QStringList remarks;     ///< lines and columns left out, and values that trouble the client
    bool is_guessed = false; ///< as of a sheet
};

/// The columns of `customer` that a spreadsheet holds, and the headings that it is written with.
[[nodiscard]] const QList<std::pair<QString, QString>>& customer_columns();

/// Reads customers as `read_sheet` reads lines. Throws failure also when no heading names the
/// mobile number.
[[nodiscard]] customer_sheet read_customers(const QByteArray& content, const QString& path,
                                            const QString& charset);
