// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

class physical_database;

/// The highest number that the client can hold in a key.
inline constexpr qint64 last_number = 32767;

/// How far the numbering of one table has come.
struct numbering {
    QString table;
    QString key;
    qint64 rows = 0;
    qint64 highest = 0; ///< the highest number given out so far, also when its row is gone
};

/// What a look through a database brings to light.
struct inspection {
    QList<numbering> numberings;
    QStringList findings;
    QStringList notes; ///< what troubles nobody
};

/// Looks through the whole database as it is at this moment. Throws failure when it holds no table
/// of ours, DataError when it cannot be read.
[[nodiscard]] inspection inspect(physical_database& database);

/// Notes and findings as they are reported, a line each.
[[nodiscard]] QString lines(const inspection& found);

/// What the engine finds broken in the file itself, a line each; empty when all is well.
[[nodiscard]] QStringList integrity_faults(physical_database& database);
