// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/spListHeaders.h"

#include <algorithm>
#include <iterator>

spListHeader& spListHeaders::Add(const spListHeader& column) {
    return columns_.emplace_back(column);
}

spListHeader& spListHeaders::Item(qsizetype position) {
    return columns_.at(static_cast<size_t>(position - 1));
}

const spListHeader& spListHeaders::Item(qsizetype position) const {
    return columns_.at(static_cast<size_t>(position - 1));
}

qsizetype spListHeaders::Count() const noexcept {
    return std::ssize(columns_);
}

void spListHeaders::Remove(qsizetype position) {
    columns_.erase(columns_.begin() + (&Item(position) - columns_.data()));
}

void spListHeaders::sort_by_position() {
    std::stable_sort(
        columns_.begin(), columns_.end(),
        [](const spListHeader& left, const spListHeader& right) { return left.POS < right.POS; });
}

qint16 spListHeaders::SUBIndex(const QString& key) const {
    const auto found =
        std::find_if(columns_.begin(), columns_.end(),
                     [&key](const spListHeader& column) { return column.key == key; });
    return found == columns_.end() ? qint16{0} : static_cast<qint16>(found - columns_.begin() + 1);
}

QString spListHeaders::picked(const QString& key) const {
    const qint16 position = SUBIndex(key);
    return position == 0 ? QString() : Item(position).Other1;
}
