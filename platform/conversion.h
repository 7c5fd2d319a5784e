// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>

// Checked conversions for whatever comes from outside: boxes, rows, settings, frames.
// Each throws DataError (conversion) for a value that is not of the wanted type; Null is none.

/// A number between -32768 and 32767, in decimal with an optional sign; blanks around it are
/// skipped.
[[nodiscard]] qint16 to_int16(const QString& text);
[[nodiscard]] qint16 to_int16(const QVariant& value);

/// A truth value: any number but 0, or a text that reads as such a number or as "True"/"False".
[[nodiscard]] bool to_boolean(const QVariant& value);

/// A text; Null is refused.
[[nodiscard]] QString to_text(const QVariant& value);

/// A date and a time of day as they are written, wherever that may be.
struct wall_time {
    QDate date;
    QTime time;

    bool operator==(const wall_time&) const = default;
};

/// A moment from "yyyy/mm/dd hh:mm:ss" or "yyyy-mm-dd hh:mm:ss"; one-digit parts, a missing time
/// and missing seconds are accepted.
[[nodiscard]] QDateTime to_datetime(const QString& text);
[[nodiscard]] QDateTime to_datetime(const QVariant& value);

/// The same as it is typed into a box: a Chinese keyboard's wide digits, colons, strokes and blanks
/// are taken too.
[[nodiscard]] QDateTime typed_datetime(const QString& text);

/// The same without an exception: an invalid QDateTime when the text is none.
[[nodiscard]] QDateTime read_datetime(QStringView text);
/// The same without asking what moment that is here; nothing when the text is none.
[[nodiscard]] std::optional<wall_time> read_wall_time(QStringView text);
