// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The program's name on the screen and in the settings store.
[[nodiscard]] inline QString application_title() {
    return QStringLiteral("岚泽短信客户关系管理系统");
}

/// The section of the settings store that holds the program's settings.
[[nodiscard]] inline QString settings_section() {
    return QStringLiteral("Settings");
}
