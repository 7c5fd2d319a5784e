// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Copies the database `file` to `path`, where nothing is yet, and looks the copy through. It is
/// one whole file without a log. `place` is what reports call it. Throws failure when there is a
/// fault in it, when it is a newer program's or when it holds not all of this system's tables;
/// DataError about `file`.
void copy_database(const QString& file, const QString& path, const QString& place);
