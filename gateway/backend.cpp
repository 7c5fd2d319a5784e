// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/backend.h"

#include "gateway/texts.h"

using namespace Qt::StringLiterals;

namespace gateway {

QString backend::command(const QString& line) {
    return texts::tr("this engine knows no command: %1").arg(line);
}

} // namespace gateway
