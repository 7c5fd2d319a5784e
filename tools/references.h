// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// A column that names a row of another table.
struct reference {
    /// What it means when there is no such row.
    enum class Dangling {
        fault,
        history,  ///< what is told of was deleted since
        leftover, ///< deleting leaves such a row, which nothing shows any more
    };

    QStringView table;
    QStringView column;
    QStringView target;
    QStringView target_key;
    Dangling dangling = Dangling::fault;
    QStringView unless; ///< the rows of which nothing is asked
};

/// All of them.
[[nodiscard]] const QList<reference>& references();

/// The condition on a row of the table that it names no row.
[[nodiscard]] QString dangles(const reference& checked);
