// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/row_store.h"

#include <vector>

/// The rows of `store` in the order that "COLUMN", "COLUMN ASC" or "COLUMN DESC" asks for; equal
/// rows keep their order. Null comes first, then numbers by value, then texts as a Chinese
/// dictionary orders them. An empty text gives an empty list: the rows as they stand. Throws
/// DataError (criterion) for anything else.
[[nodiscard]] std::vector<qint32> sorted_rows(const row_store& store, const QString& order);
