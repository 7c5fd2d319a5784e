// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/backend.h"

using namespace Qt::StringLiterals;

namespace gateway {

QString backend::command(const QString& line) {
    return u"this engine knows no command: %1"_s.arg(line);
}

} // namespace gateway
