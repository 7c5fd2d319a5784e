// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/conversion.h"
#include "platform/database/row_store.h"

#include <optional>

/// A find criterion: COLUMN = 'text' or COLUMN = number, blanks around its pieces skipped.
class criterion {
public:
    /// Throws DataError (criterion) when the text has another form or names no column of `store`.
    criterion(const QString& text, const row_store& store);

    [[nodiscard]] bool matches(const row_store& store, qsizetype row) const;

private:
    [[nodiscard]] bool matches_text(const QString& text) const;

    qsizetype column_ = -1;
    QString value_;
    std::optional<double> number_;    ///< the value, when it can be read as one
    std::optional<wall_time> moment_; ///< likewise
};

/// A column name as criteria and sort orders write it: bare or in square brackets.
[[nodiscard]] qsizetype parse_column(QStringView name, const row_store& store);
