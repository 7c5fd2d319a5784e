// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeader.h"

#include <vector>

/// A view definition: what a list window shows, its columns in display order.
class spListHeaders {
public:
    QString ViewNo; ///< the view number, the key
    QString vName;  ///< the list window's caption
    QString other;  ///< the toolbar's mode: "all", "modify" or "readonly"
    bool ReadOnly = false;
    QVariant isTwoS;

    /// Appends a column and returns it.
    spListHeader& Add(const spListHeader& column);
    /// The column at a position from 1. Throws std::out_of_range when there is none.
    [[nodiscard]] spListHeader& Item(qsizetype position);
    [[nodiscard]] const spListHeader& Item(qsizetype position) const;
    [[nodiscard]] qsizetype Count() const noexcept;
    void Remove(qsizetype position);
    /// Puts the columns into the order of their `POS`.
    void sort_by_position();
    /// The position from 1 of the column with exactly this key, or 0.
    [[nodiscard]] qint16 SUBIndex(const QString& key) const;
    /// What a reference pick left for the column with this key; empty when there is none.
    [[nodiscard]] QString picked(const QString& key) const;

    [[nodiscard]] auto begin() { return columns_.begin(); }
    [[nodiscard]] auto end() { return columns_.end(); }
    [[nodiscard]] auto begin() const { return columns_.begin(); }
    [[nodiscard]] auto end() const { return columns_.end(); }

private:
    std::vector<spListHeader> columns_;
};
