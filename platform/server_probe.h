// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Tries to reach a server, "host" or "host,port" (1433 when none is given), and waits 3 s at most.
/// Throws DataError (cannot_open) when it cannot be reached.
void probe_server(const QString& server);
