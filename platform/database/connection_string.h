// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The path of the file that a connection string names under "Data Source". The value runs to the
/// end of the string less one closing ";", so directories may hold blanks and semicolons; the
/// backslash before the file name becomes the system's separator. Empty when nothing is named.
[[nodiscard]] QString data_source(const QString& connection_string);
