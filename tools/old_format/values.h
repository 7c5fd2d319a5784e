// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/tables.h"

#include <QJsonValue>
#include <QString>
#include <QVariant>

namespace old_format {

/// An old value as the schema holds it.
struct carried {
    QVariant value;
    QString fault; ///< why `value` is not all of the old one; empty when it is
};

/// A value as a text, whatever its type was there.
[[nodiscard]] QString text_of(const QJsonValue& value);

/// Null stays Null; what cannot be carried becomes 0, or Null where the column takes a moment or a
/// text. An empty object stands for a value that could not be read.
[[nodiscard]] carried carry(const QJsonValue& value, column_kind wanted);

} // namespace old_format
