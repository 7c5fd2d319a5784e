// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// What makes a row unusable for the client, though the database takes it.
struct row_fault {
    QStringView table;
    QString what;
    QStringView condition; ///< on a row of the table
};

/// All of them.
[[nodiscard]] const QList<row_fault>& row_faults();
