// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/console.h"

#include "platform/terminal.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace gateway {

void complain(const QString& what) {
    const QByteArray line = terminal_text(u"smsgateway: "_s + what + u'\n');
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

void print(const QString& text) {
    const QByteArray bytes = terminal_text(text);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace gateway
