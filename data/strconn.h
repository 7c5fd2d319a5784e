// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The connection string of the one database; built once at start-up.
extern QString strconn;

/// The connection string for a database that lies in `directory` (without a closing separator).
[[nodiscard]] QString make_strconn(const QString& directory);
