// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gateway {

/// Writes one line to standard error, after the program's name.
void complain(const QString& what);

/// Writes to standard output, at once.
void print(const QString& text);

} // namespace gateway
