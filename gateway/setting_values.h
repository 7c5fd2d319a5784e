// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/settings.h"

namespace gateway {

/// Sets one setting by its name in the file, "section/key". Gives what it would have to be when the
/// value does not fit, and leaves the setting as it was; else nothing.
[[nodiscard]] QString apply_setting(settings& target, const QString& name, const QString& value);

/// The name of an engine in the file.
[[nodiscard]] QString name_of(engine_name engine);

/// The names of all settings there are, "section/key".
[[nodiscard]] QStringList setting_names();

} // namespace gateway
