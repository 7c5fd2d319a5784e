// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

/// Tables as a spreadsheet reads them from a file: UTF-8, comma, CR LF.
namespace csv {

/// What a file begins with, so that a spreadsheet takes it for UTF-8.
inline constexpr QByteArrayView byte_order_mark = "\xef\xbb\xbf";

/// One line with its end. A field that holds a separator, a quote or a line break stands between
/// quotes, quotes in it doubled. A text that a spreadsheet would take for a formula gets an
/// apostrophe before it, and so does one that begins with an apostrophe: taking one away gives back
/// every text.
[[nodiscard]] QByteArray line(const QStringList& fields);

} // namespace csv
