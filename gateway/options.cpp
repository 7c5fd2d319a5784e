// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/options.h"

#include "gateway/relay_rules.h"
#include "gateway/setting_values.h"
#include "gateway/texts.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// Options that set what the settings file could set, too. Without the name of a value, the option
/// alone sets a value.
struct setting_option {
    QString name;
    QString setting;
    QString help;
    QString value_name;
    QString alone = {};
};

/// What is done instead of serving.
struct command {
    QStringView name;
    task what = task::serve;
    bool takes_id = false;
};

constexpr std::array commands{
    command{u"check", task::check, false}, command{u"list", task::list, false},
    command{u"show", task::show, true},    command{u"resend", task::resend, true},
    command{u"drop", task::drop, true},
};

QString arguments_text() {
    return u"[check | list | show ID | resend ID | drop ID]"_s;
}

QList<setting_option> setting_options() {
    return {
        {u"listen"_s, u"gateway/listen"_s,
         texts::tr(
             "Serve clients on this address; port 0 takes a free one (default 127.0.0.1:9100)."),
         texts::tr("address:port")},
        {u"store"_s, u"gateway/state_dir"_s, texts::tr("Keep messages in this folder."),
         texts::tr("folder")},
        {u"page"_s, u"http/listen"_s,
         texts::tr("Show the status page on this address (default 127.0.0.1:9101)."),
         texts::tr("address:port")},
        {u"no-page"_s, u"http/on"_s, texts::tr("Show no status page."), {}, u"no"_s},
        {u"backend"_s, u"gateway/engine"_s,
         texts::tr("The network to use: simulator (default), kannel or gammu."), texts::tr("name")},
        {u"fail-rate"_s, u"simulator/fail_rate"_s,
         texts::tr("Simulator: probability, 0 to 1, that a message is refused."), u"P"_s},
        {u"lose-rate"_s, u"simulator/lose_rate"_s,
         texts::tr("Simulator: probability, 0 to 1, that an accepted message is not delivered."),
         u"P"_s},
        {u"drop-rate"_s, u"simulator/drop_rate"_s,
         texts::tr("Simulator: probability, 0 to 1, that nothing is heard of a message."), u"P"_s},
        {u"delay"_s, u"simulator/delay_ms"_s,
         texts::tr("Simulator: milliseconds before a message is accepted."), u"ms"_s},
        {u"report-delay"_s, u"simulator/report_delay_ms"_s,
         texts::tr(
             "Simulator: milliseconds from then to a report of delivery; 0 is none (default)."),
         u"ms"_s},
        {u"echo"_s,
         u"simulator/echo"_s,
         texts::tr("Simulator: answer every accepted message with a received one."),
         {},
         u"yes"_s},
        {u"echo-delay"_s, u"simulator/echo_delay_ms"_s,
         texts::tr("Simulator: milliseconds before such an answer (default 1000)."), u"ms"_s},
    };
}

void declare_options(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        texts::tr("Takes text messages from clients to a mobile network."));
    parser.addPositionalArgument(
        u"command"_s,
        texts::tr("Nothing: serve. check: try the settings. list: show messages. show: tell all of "
                  "one. resend: send one once more that failed, or of which nothing is known. "
                  "drop: give one up that waits, or of which nothing is known."),
        arguments_text());
    parser.addOptions({
        {{u"h"_s, u"help"_s}, texts::tr("Print this help and exit.")},
        {{u"v"_s, u"version"_s}, texts::tr("Print the version and exit.")},
        {u"config"_s, texts::tr("Read the settings from this file."), texts::tr("file")},
        {u"state"_s,
         texts::tr("List: only messages in this state: %1. Else the same as --store.")
             .arg(state_names().join(u", "_s)),
         texts::tr("state or folder")},
        {u"since"_s,
         texts::tr("List: only messages from this time on, as \"2026-11-21\" or \"2026-11-21 "
                   "17:30\"."),
         texts::tr("time")},
        {u"json"_s, texts::tr("List: a line of JSON for every message.")},
        {u"control"_s,
         texts::tr("Read commands from this FIFO as well as from standard input. The simulator's "
                   "command \"recv NUMBER TEXT\" lets a message arrive."),
         texts::tr("FIFO")},
    });
    for (const setting_option& one : setting_options()) {
        parser.addOption({one.name, one.help, one.value_name});
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

/// The times that people write, in local time; nothing for anything else.
std::optional<qint64> time_named(const QString& text) {
    for (const QString& form : {u"yyyy-MM-dd"_s, u"yyyy-MM-dd HH:mm"_s, u"yyyy-MM-dd HH:mm:ss"_s}) {
        const auto time = QDateTime::fromString(text, form);
        if (time.isValid()) {
            return time.toMSecsSinceEpoch();
        }
    }
    return std::nullopt;
}

QStringList apply_options(const QCommandLineParser& parser, settings& values) {
    QStringList faults;
    for (const setting_option& one : setting_options()) {
        if (parser.isSet(one.name)) {
            const QString value = one.value_name.isEmpty() ? one.alone : parser.value(one.name);
            const QString expected = apply_setting(values, one.setting, value);
            if (!expected.isEmpty()) {
                faults.append(texts::tr("--%1 %2: expected %3").arg(one.name, value, expected));
            }
        }
    }
    for (const QString& name : {u"config"_s, u"control"_s, u"state"_s, u"store"_s}) {
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            faults.append(texts::tr("--%1: expected a name").arg(name));
        }
    }
    return faults;
}

/// The options of the command itself.
QStringList apply_command_options(const QCommandLineParser& parser, options& result) {
    QStringList faults;
    const QString state = parser.value(u"state"_s);
    if (result.wanted != task::list) {
        if (!state.isEmpty()) {
            result.values.gateway.state_dir = state;
        }
        return faults;
    }
    if (parser.isSet(u"state"_s) && !state_named(state)) {
        faults.append(
            texts::tr("--state %1: expected one of: %2").arg(state, state_names().join(u", "_s)));
    }
    const auto since = time_named(parser.value(u"since"_s));
    if (parser.isSet(u"since"_s) && !since) {
        faults.append(texts::tr("--since %1: expected a time as 2026-11-21 or \"2026-11-21 17:30\"")
                          .arg(parser.value(u"since"_s)));
    }
    result.state = state;
    result.since = since.value_or(0);
    result.json = parser.isSet(u"json"_s);
    return faults;
}

/// The command and its message; false when the words make no sense.
bool read_command(const QStringList& words, options& result) {
    if (words.isEmpty()) {
        return true;
    }
    const auto* found =
        std::find_if(commands.begin(), commands.end(),
                     [&words](const command& one) { return one.name == words.first(); });
    if (found == commands.end() || words.size() != (found->takes_id ? 2 : 1)) {
        return false;
    }
    result.wanted = found->what;
    result.id = found->takes_id ? words.last().toLongLong() : 0;
    return !found->takes_id || result.id > 0;
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
    options result;
    result.control_path = parser.value(u"control"_s);
    if (!read_command(parser.positionalArguments(), result)) {
        return usage_error{texts::tr("expected %1 instead of: %2")
                               .arg(arguments_text(), parser.positionalArguments().join(u' '))};
    }
    QStringList faults;
    if (parser.isSet(u"config"_s)) {
        settings_reading read = read_settings(parser.value(u"config"_s));
        result.values = read.values;
        faults = read.faults;
    }
    faults += apply_options(parser, result.values);
    faults += apply_command_options(parser, result);
    if (!faults.isEmpty()) {
        return usage_error{faults.join(u'\n')};
    }
    if (result.values.gateway.state_dir.isEmpty()) {
        result.values.gateway.state_dir = default_state_dir();
    }
    return result;
}

} // namespace gateway
