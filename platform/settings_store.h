// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The per-user settings store: one INI file an application, texts by section and key.
namespace settings_store {

[[nodiscard]] QString get(const QString& application, const QString& section, const QString& key,
                          const QString& fallback = {});
void save(const QString& application, const QString& section, const QString& key,
          const QString& value);

} // namespace settings_store
