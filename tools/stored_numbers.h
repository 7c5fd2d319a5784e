// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

class physical_database;

/// A telephone number in a database, as it stands there and as it is dialled.
struct stored_number {
    qint64 row = 0;
    QString written;
    QString dialled; ///< empty when it is no number
};

/// A column of telephone numbers, as far as anything depends on it still.
struct number_column {
    QString table;
    QString query; ///< gives key and number
};

/// The customers' numbers, those of messages that wait to be sent, and those of messages received,
/// by which their senders are known. What was sent stays as it was.
[[nodiscard]] const QList<number_column>& number_columns();

/// The numbers in that column that are not as they are dialled. Throws DataError.
[[nodiscard]] QList<stored_number> untidy_numbers(physical_database& database,
                                                  const number_column& column);
