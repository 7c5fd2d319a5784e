// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/settings.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace gateway {

/// What is to be done.
enum class task { serve, check, list, show, resend, drop };

/// What the command line asks for, the settings file and what it names included.
struct options {
    task wanted = task::serve;
    settings values;
    QString control_path; ///< empty: no FIFO
    bool json = false;
    QString state;     ///< of the messages to list; empty: all
    qint64 since = 0;  ///< of the messages to list: taken from this time on
    message_id id = 0; ///< of the message to show, resend or drop
};

/// Text to print instead of serving: the help or the version.
struct printed_text {
    QString text;
};

/// Why the command line or the settings make no sense, a line for each fault.
struct usage_error {
    QString text;
};

/// Reads the command line, the program's name first. Needs the application object for its name
/// and version.
[[nodiscard]] std::variant<options, printed_text, usage_error>
parse_options(const QStringList& arguments);

} // namespace gateway
