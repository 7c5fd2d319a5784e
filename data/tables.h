// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
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
    bool needs_value = false;    ///< it cannot be Null

    /// Whether it holds whole numbers.
    [[nodiscard]] bool is_number() const {
        return kind != column_kind::text && kind != column_kind::moment;
    }
};

struct table_description {
    QStringView name;
    std::span<const table_column> columns;
    /// A row means nothing unless all that it points at is there.
    bool is_relation = false;
    /// The program fills it itself: with what it comes with, or with its log.
    bool is_programs_own = false;
    /// Nothing points at its rows: their numbers may close up once their owner asks for it.
    bool closes_up = false;

    /// The key column's name; empty for a table that has none.
    [[nodiscard]] QStringView key() const;
};

/// Every table of the schema, those that others point at before them. What the columns mean is said
/// here alone; a test holds it against the schema.
[[nodiscard]] std::span<const table_description> all_tables();

/// The table with this name, without regard to case; nullptr when there is none.
[[nodiscard]] const table_description* find_table(QStringView name);

/// What it means when a row points at one that is not there.
enum class dangling {
    fault,
    history,  ///< what is told of was deleted since
    leftover, ///< deleting leaves such a row, which nothing shows any more
};

/// A column that points at the rows of a table.
struct reference {
    const table_description& table;
    const table_column& column;
    dangling meaning = dangling::fault;

    /// The condition on a row of the table that it points nowhere.
    [[nodiscard]] QString dangles() const;
};

/// All of them.
[[nodiscard]] QList<reference> all_references();
