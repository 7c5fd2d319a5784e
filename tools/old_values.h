// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>

/// What a column of the schema takes.
enum class content {
    number, ///< 16 bits
    flag,   ///< -1 and 0
    mark,   ///< 1 and 0
    moment, ///< "yyyy/mm/dd hh:mm:ss"
    text,
};

/// What the column of that name and declared type takes.
[[nodiscard]] content content_of(const QString& column, const QString& type);

/// An old value as the schema holds it.
struct carried {
    QVariant value;
    QString fault; ///< why `value` is not all of the old one; empty when it is
};

/// A value as a text, whatever its type was there.
[[nodiscard]] QString text_of(const QJsonValue& value);

/// Null stays Null; what cannot be carried becomes 0, or Null where the column takes a moment or a
/// text. An empty object stands for a value that could not be read.
[[nodiscard]] carried carry(const QJsonValue& value, content wanted);
