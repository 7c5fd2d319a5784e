// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/row_order.h"

#include "platform/data_error.h"
#include "platform/database/criterion.h"

#include <QCollator>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct sort_key {
    row_store::Type type = row_store::Type::null;
    double number = 0;
    std::optional<QCollatorSortKey> text;
};

int rank(row_store::Type type) {
    switch (type) {
    case row_store::Type::null:
        return 0;
    case row_store::Type::integer:
    case row_store::Type::real:
        return 1;
    case row_store::Type::text:
        break;
    }
    return 2;
}

bool operator<(const sort_key& left, const sort_key& right) {
    const int left_rank = rank(left.type);
    const int right_rank = rank(right.type);
    if (left_rank != right_rank || left_rank == 0) {
        return left_rank < right_rank;
    }
    return left_rank == 1 ? left.number < right.number : left.text->compare(*right.text) < 0;
}

std::vector<sort_key> keys_of(const row_store& store, qsizetype column) {
    QCollator collator(QLocale(QLocale::Chinese, QLocale::China));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<sort_key> keys(static_cast<size_t>(store.rows()));
    for (qsizetype row = 0; row < store.rows(); ++row) {
        sort_key& key = keys[static_cast<size_t>(row)];
        key.type = store.type(row, column);
        if (key.type == row_store::Type::text) {
            key.text = collator.sortKey(store.text(row, column));
        } else if (key.type != row_store::Type::null) {
            key.number = store.value(row, column).toDouble();
        }
    }
    return keys;
}

} // namespace

std::vector<qint32> sorted_rows(const row_store& store, const QString& order) {
    if (order.trimmed().isEmpty()) {
        return {};
    }
    static const QRegularExpression pattern(uR"(^\s*(\w+|\[[^\]]+\])(?:\s+(ASC|DESC))?\s*$)"_s,
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption);
    const auto match = pattern.match(order);
    if (!match.hasMatch()) {
        throw DataError(DataError::Kind::criterion, u"cannot read \"%1\""_s.arg(order.left(80)));
    }
    const std::vector<sort_key> keys = keys_of(store, parse_column(match.capturedView(1), store));
    const bool descending = match.capturedView(2).startsWith(u'd', Qt::CaseInsensitive);

    std::vector<qint32> rows(keys.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](qint32 left, qint32 right) {
        const auto& first = keys[static_cast<size_t>(descending ? right : left)];
        const auto& second = keys[static_cast<size_t>(descending ? left : right)];
        return first < second;
    });
    return rows;
}
