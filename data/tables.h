// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <span>

/// What a column holds. All but texts and moments are whole numbers of 16 bits.
enum class column_kind {
    key, ///< given out by the database, never twice
    number,
    flag,   ///< -1 and 0
    mark,   ///< 1 and 0
    moment, ///< "yyyy/mm/dd hh:mm:ss"
    text,
};

struct table_column {
    QStringView name;
    column_kind kind = column_kind::text;
    QStringView target = {};     ///< the table that the value names a row of
    QStringView target_key = {}; ///< its column that has the same value
    QStringView none_where = {}; ///< the rows whose value names none, as a condition
};

struct table_description {
    QStringView name;
    std::span<const table_column> columns;
    /// A row means nothing unless all that it points at is there.
    bool is_relation = false;
    /// Its rows come with the program; an office may have changed them.
    bool is_delivered = false;

    /// The key column's name; empty for a table that has none.
    [[nodiscard]] QStringView key() const;
};

/// Every table of the schema, those that others point at before them. What the columns mean is said
/// here alone; a test holds it against the schema.
[[nodiscard]] std::span<const table_description> all_tables();

/// The table with this name, without regard to case; nullptr when there is none.
[[nodiscard]] const table_description* find_table(QStringView name);
