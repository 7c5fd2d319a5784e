// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/console.h"

#include "gateway/texts.h"
#include "platform/terminal.h"

#include <QDeadlineTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// Whoever connects a thousand times a second must not fill the log.
constexpr int most_lines = 50;
constexpr std::chrono::seconds within{60};

void write_line(const QString& what) {
    const QByteArray line = terminal_text(u"smsgateway: "_s + what + u'\n');
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

} // namespace

void complain(const QString& what) {
    static QDeadlineTimer period(within);
    static int lines = 0;
    if (period.hasExpired()) {
        period = QDeadlineTimer(within);
        lines = 0;
    }
    if (++lines <= most_lines) {
        write_line(what);
    } else if (lines == most_lines + 1) {
        write_line(texts::tr("more of this is left out for a minute"));
    }
}

void print(const QString& text) {
    const QByteArray bytes = terminal_text(text);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace gateway
