// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

namespace gateway {

/// A message a client wants sent. The mobile is as it was typed: a number with blanks and dashes.
struct submission {
    QString mobile;
    QString text;
};

/// A message from the network. The sender has a two-character country prefix such as "86".
struct received_message {
    QString sender;
    QDateTime time;
    QString text;
};

/// What became of a submission, as the client is told.
enum class verdict { sent, failed };

/// The sender's length travels as two decimal digits.
inline constexpr qsizetype max_sender_length = 99;

/// The UTF-16LE bytes of the text, without a byte order mark.
[[nodiscard]] QByteArray encode_text(QStringView text);

/// The text of UTF-16LE bytes, unit by unit; half a unit at the end becomes U+FFFD.
[[nodiscard]] QString decode_text(const QByteArray& bytes);

/// Reads a client's frame: the length of the mobile, the mobile, the text. Two digits of length
/// win over one when that many characters follow and are digits, dashes and blanks: if they are
/// then no number, one digit is not tried. Nothing if neither fits.
[[nodiscard]] std::optional<submission> parse_submission(const QByteArray& frame);

/// The character that tells a verdict: "1" for sent, "2" for failed.
[[nodiscard]] QString verdict_code(verdict result);

/// The frame that tells a client the verdict on its message.
[[nodiscard]] QByteArray encode(verdict result);

/// The frame that brings a client a received message. The sender has at most max_sender_length
/// characters.
[[nodiscard]] QByteArray encode(const received_message& message);

} // namespace gateway
