// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// A constant: what is stored, and what is shown for it.
struct constvalue {
    QString value;
    QString dispvalue;
};

/// A collection of constants in the order they were added; an item may have a key.
class constvalues {
public:
    /// Appends an item and returns it; an empty key adds it without one. Throws DataError
    /// (duplicate_key) for a key that is there already.
    constvalue& Add(const QString& value, const QString& dispvalue, const QString& key = {});
    /// The item at a position from 1, or under a key; nullptr when there is none.
    [[nodiscard]] const constvalue* Item(qsizetype index) const;
    [[nodiscard]] const constvalue* Item(const QString& key) const;
    [[nodiscard]] qsizetype Count() const noexcept { return std::ssize(items_); }
    /// Removes the item at a position from 1; one that is not there is no error.
    void Remove(qsizetype index);

    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }

    /// Adds a group of table `CONSTS`, each item under its stored value. Throws DataError.
    void load(const QString& connection_string, const QString& group);

private:
    struct item : constvalue {
        QString key;
    };

    std::vector<item> items_;
};
