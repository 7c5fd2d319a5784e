// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/options.h"

#include "gateway/message_text.h"
#include "gateway/relay_rules.h"
#include "gateway/setting_values.h"

#include <QCommandLineParser>
#include <QDir>

#include <array>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// Options that set what the settings file could set, too. An empty value: the option has none.
struct setting_option {
    QString name;
    QString setting;
    QString help;
    QString value;
};

QList<setting_option> setting_options() {
    return {
        {u"listen"_s, u"gateway/listen"_s,
         say("Serve clients on this address; port 0 takes a free one (default 127.0.0.1:9100)."),
         u"address:port"_s},
        {u"state"_s, u"gateway/state_dir"_s, say("Keep messages in this folder."), u"folder"_s},
        {u"backend"_s, u"gateway/engine"_s,
         say("The network to use: simulator (default), kannel or gammu."), u"name"_s},
        {u"fail-rate"_s, u"simulator/fail_rate"_s,
         say("Simulator: probability, 0 to 1, that a message is refused."), u"P"_s},
        {u"lose-rate"_s, u"simulator/lose_rate"_s,
         say("Simulator: probability, 0 to 1, that an accepted message is not delivered."), u"P"_s},
        {u"drop-rate"_s, u"simulator/drop_rate"_s,
         say("Simulator: probability, 0 to 1, that nothing is heard of a message."), u"P"_s},
        {u"delay"_s, u"simulator/delay_ms"_s,
         say("Simulator: milliseconds before a message is accepted."), u"ms"_s},
        {u"report-delay"_s, u"simulator/report_delay_ms"_s,
         say("Simulator: milliseconds from then to a report of delivery; 0 is none (default)."),
         u"ms"_s},
        {u"echo"_s,
         u"simulator/echo"_s,
         say("Simulator: answer every accepted message with a received one."),
         {}},
        {u"echo-delay"_s, u"simulator/echo_delay_ms"_s,
         say("Simulator: milliseconds before such an answer (default 1000)."), u"ms"_s},
    };
}

void declare_options(QCommandLineParser& parser) {
    parser.setApplicationDescription(say("Takes text messages from clients to a mobile network."));
    parser.addPositionalArgument(
        u"command"_s,
        say(R"(Nothing to serve, "check" to try the settings, "list" to show messages.)"),
        u"[check|list]"_s);
    parser.addOptions({
        {{u"h"_s, u"help"_s}, say("Print this help and exit.")},
        {{u"v"_s, u"version"_s}, say("Print the version and exit.")},
        {u"config"_s, say("Read the settings from this file."), u"file"_s},
        {u"control"_s,
         say("Read commands from this FIFO as well as from standard input. The simulator's command "
             "\"recv NUMBER TEXT\" lets a message arrive."),
         u"fifo"_s},
        {u"json"_s, say("List: a line of JSON for every message.")},
        {u"in-state"_s, say("List: only messages in this state."), u"state"_s},
    });
    for (const setting_option& one : setting_options()) {
        parser.addOption(one.value.isEmpty() ? QCommandLineOption(one.name, one.help)
                                             : QCommandLineOption(one.name, one.help, one.value));
    }
}

/// Where the system keeps the state of a service, or else of a user's programs.
QString default_state_dir() {
    QString of_service = qEnvironmentVariable("STATE_DIRECTORY");
    if (!of_service.isEmpty()) {
        return of_service;
    }
    const QString of_user =
        qEnvironmentVariable("XDG_STATE_HOME", QDir::home().filePath(u".local/state"_s));
    return QDir(of_user).filePath(u"smsgateway"_s);
}

QStringList apply_options(const QCommandLineParser& parser, settings& values) {
    QStringList faults;
    for (const setting_option& one : setting_options()) {
        if (parser.isSet(one.name)) {
            const QString value = one.value.isEmpty() ? u"yes"_s : parser.value(one.name);
            const QString expected = apply_setting(values, one.setting, value);
            if (!expected.isEmpty()) {
                faults.append(say("--%1 %2: expected %3").arg(one.name, value, expected));
            }
        }
    }
    for (const QString& name : {u"config"_s, u"control"_s, u"state"_s}) {
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            faults.append(say("--%1: expected the name of a file").arg(name));
        }
    }
    const QString state = parser.value(u"in-state"_s);
    if (parser.isSet(u"in-state"_s) && !state_named(state)) {
        faults.append(
            say("--in-state %1: expected one of: %2").arg(state, state_names().join(u", "_s)));
    }
    return faults;
}

std::optional<task> task_named(const QStringList& words) {
    if (words.isEmpty()) {
        return task::serve;
    }
    if (words.size() > 1) {
        return std::nullopt;
    }
    return words.first() == u"check"  ? std::optional(task::check)
           : words.first() == u"list" ? std::optional(task::list)
                                      : std::nullopt;
}

} // namespace

std::variant<options, printed_text, usage_error> parse_options(const QStringList& arguments) {
    QCommandLineParser parser;
    declare_options(parser);
    if (!parser.parse(arguments)) {
        return usage_error{parser.errorText()};
    }
    if (parser.isSet(u"help"_s)) {
        return printed_text{parser.helpText()};
    }
    if (parser.isSet(u"version"_s)) {
        return printed_text{u"%1 %2\n"_s.arg(QCoreApplication::applicationName(),
                                             QCoreApplication::applicationVersion())};
    }
    const auto wanted = task_named(parser.positionalArguments());
    if (!wanted) {
        return usage_error{
            say("unexpected argument: %1").arg(parser.positionalArguments().join(u' '))};
    }
    options result{.wanted = *wanted,
                   .values = {},
                   .control_path = parser.value(u"control"_s),
                   .json = parser.isSet(u"json"_s),
                   .state = parser.value(u"in-state"_s)};
    QStringList faults;
    if (parser.isSet(u"config"_s)) {
        settings_reading read = read_settings(parser.value(u"config"_s));
        result.values = read.values;
        faults = read.faults;
    }
    faults += apply_options(parser, result.values);
    if (!faults.isEmpty()) {
        return usage_error{faults.join(u'\n')};
    }
    if (result.values.gateway.state_dir.isEmpty()) {
        result.values.gateway.state_dir = default_state_dir();
    }
    return result;
}

} // namespace gateway
