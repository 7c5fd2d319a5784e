// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;
class QString;

/// A text in the encoding of the user's terminal. What that does not know becomes a question mark.
[[nodiscard]] QByteArray terminal_text(const QString& text);
