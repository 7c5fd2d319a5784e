// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

// The wire format of the gateway link: UTF-16LE text, two bytes a character, no marks, no lengths
// and no delimiters around a frame. Pure functions; no socket.
namespace gateway_frame {

/// A message that a handset sent.
struct received {
    QString mobile; ///< without the two-character prefix in front of it
    QDateTime time;
    QString text;
};

/// An outgoing message: the mobile's length in decimal, the mobile, the text.
[[nodiscard]] QString outgoing(const QString& mobile, const QString& text);

/// The characters' storage, low byte first.
[[nodiscard]] QByteArray to_bytes(const QString& frame);
/// The same way back; an odd last byte is the low half of a last character.
[[nodiscard]] QString from_bytes(const QByteArray& bytes);

/// Splits a frame that begins with "0": two digits L1, a sender field of L1 characters, two digits
/// L2, a time field of L2 characters (yymmddhhmmss), the text. Throws DataError (conversion) when
/// the lengths are no numbers or the time field is no date.
[[nodiscard]] received parse_received(const QString& frame);

} // namespace gateway_frame
