// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

// Values as statements write them. Every value that enters a statement passes here.

/// Whether a text can be written between single quotes as it stands: one that holds a single quote
/// or a NUL cannot.
[[nodiscard]] bool is_writable(const QString& text);

/// A text between single quotes, as it stands. Throws DataError (text_literal) when it cannot be
/// written this way.
[[nodiscard]] QString text_literal(const QString& text);

/// A number in decimal.
[[nodiscard]] QString int16_literal(qint16 number);

// One name for all of them, for the statement templates of record_access.
[[nodiscard]] inline QString literal(const QString& text) {
    return text_literal(text);
}
[[nodiscard]] inline QString literal(qint16 number) {
    return int16_literal(number);
}
[[nodiscard]] inline QString literal(qint32 number) {
    return QString::number(number);
}
/// True is -1, false is 0.
[[nodiscard]] QString literal(bool value);
/// A moment as quoted text.
[[nodiscard]] QString literal(const QDateTime& moment);
