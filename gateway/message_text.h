// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace gateway {

/// A text of this program in the language of the person who reads it.
[[nodiscard]] inline QString say(const char* source) {
    return QCoreApplication::translate("smsgateway", source);
}

} // namespace gateway
