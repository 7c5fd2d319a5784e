// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/simulator_backend.h"

#include <QHostAddress>
#include <QString>
#include <QStringList>

#include <variant>

namespace gateway {

/// What the command line asks for. Empty paths mean that there is no such file.
struct options {
    QHostAddress address;
    quint16 port = 0;
    simulator_settings simulator;
    QString journal_path;
    QString control_path;
};

/// Text to print instead of serving: the help or the version.
struct printed_text {
    QString text;
};

/// Why the command line makes no sense.
struct usage_error {
    QString text;
};

/// Reads the command line, the program's name first. Needs the application object for its name
/// and version.
[[nodiscard]] std::variant<options, printed_text, usage_error>
parse_options(const QStringList& arguments);

} // namespace gateway
