// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/check_command.h"
#include "gateway/console.h"
#include "gateway/control_channel.h"
#include "gateway/engines.h"
#include "gateway/list_command.h"
#include "gateway/message_text.h"
#include "gateway/options.h"
#include "gateway/relay.h"
#include "gateway/system_calls.h"
#include "gateway/termination_watch.h"
#include "platform/data_error.h"
#include "platform/process_limits.h"
#include "platform/program_language.h"
#include "platform/standard_streams.h"
#include "platform/terminal_application.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileSystemWatcher>

#include <csignal>
#include <cstdlib>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString& what) {
    gateway::complain(what);
    return EXIT_FAILURE;
}

// Passes the lines of the descriptor to the network as commands.
std::unique_ptr<gateway::control_channel> watch_commands(int descriptor,
                                                         gateway::backend& network) {
    auto channel = std::make_unique<gateway::control_channel>(descriptor);
    const auto complain = [](const QString& reason) {
        gateway::complain(gateway::say("command ignored: %1").arg(reason));
    };
    QObject::connect(channel.get(), &gateway::control_channel::line_refused, complain);
    QObject::connect(channel.get(), &gateway::control_channel::line_read,
                     [&network, complain](const QString& line) {
                         const QString reason = network.command(line);
                         if (!reason.isEmpty()) {
                             complain(reason);
                         }
                     });
    return channel;
}

/// Opens the door, or takes over the one that the service manager holds open.
QString open_door(gateway::server& clients, const gateway::endpoint& place) {
    const auto inherited = gateway::inherited_listener();
    return inherited ? clients.adopt(*inherited) : clients.listen(place);
}

/// Lets the relay look when another program has changed a message in its store.
std::unique_ptr<QFileSystemWatcher> watch_nudges(const QString& folder, gateway::relay& relay) {
    const QString path = gateway::store::nudge_in(folder);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        gateway::complain(u"%1: %2"_s.arg(path, file.errorString()));
    }
    auto watcher = std::make_unique<QFileSystemWatcher>(QStringList(path));
    QObject::connect(watcher.get(), &QFileSystemWatcher::fileChanged,
                     [&relay] { relay.messages().wake(); });
    return watcher;
}

int serve(const gateway::options& wanted) {
    const gateway::termination_watch termination;
    const gateway::settings& values = wanted.values;
    gateway::system_clock time;
    gateway::store store(values.gateway.state_dir, gateway::store::user::daemon);
    gateway::http_server calls;
    const auto network = gateway::make_engine(values, time, &store, &calls);
    if (values.http.on && values.gateway.engine == gateway::engine_name::kannel) {
        const QString fault = calls.listen(values.http.listen);
        if (!fault.isEmpty()) {
            return fail(gateway::say("cannot listen on %1: %2")
                            .arg(endpoint_text(values.http.listen), fault));
        }
    }
    std::unique_ptr<gateway::control_channel> fifo;
    if (!wanted.control_path.isEmpty()) {
        QString reason;
        const int descriptor = gateway::control_channel::open_fifo(wanted.control_path, reason);
        if (descriptor < 0) {
            return fail(
                gateway::say("cannot open the FIFO %1: %2").arg(wanted.control_path, reason));
        }
        fifo = watch_commands(descriptor, *network);
    }
    gateway::relay relay(store, *network, time, values);
    gateway::endpoint door = values.gateway.listen;
    const QString reason = open_door(relay.clients(), door);
    if (!reason.isEmpty()) {
        return fail(gateway::say("cannot listen on %1: %2").arg(endpoint_text(door), reason));
    }
    relay.start();
    door.port = relay.clients().port();
    gateway::print(gateway::say("listening on %1").arg(endpoint_text(door)) + u'\n');
    gateway::tell_service_manager("READY=1");
    const auto nudges = watch_nudges(values.gateway.state_dir, relay);
    const auto input = watch_commands(STDIN_FILENO, *network);
    QObject::connect(&termination, &gateway::termination_watch::requested, [&relay] {
        gateway::tell_service_manager("STOPPING=1");
        relay.end([] { QCoreApplication::quit(); });
    });
    return QCoreApplication::exec();
}

int carry_out(const gateway::options& wanted) {
    switch (wanted.wanted) {
    case gateway::task::check:
        return gateway::check_settings(wanted.values);
    case gateway::task::list:
        return gateway::list_messages(wanted);
    case gateway::task::serve:
        break;
    }
    try {
        return serve(wanted);
    } catch (const DataError& error) {
        return fail(gateway::say("cannot use the store in %1: %2")
                        .arg(wanted.values.gateway.state_dir, error.detail()));
    }
}

} // namespace

int main(int argc, char* argv[]) {
    fill_standard_streams();
    // A reader of our output that goes away must not end the gateway, nor a limit on files.
    std::signal(SIGPIPE, SIG_IGN);
    survive_file_size_limit();
    const auto application = terminal_application(argc, argv);
    QCoreApplication::setApplicationName(u"smsgateway"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(SMSGATEWAY_VERSION));
    speak_users_language(u"smsgateway"_s);

    const auto parsed = gateway::parse_options(QCoreApplication::arguments());
    if (const auto* error = std::get_if<gateway::usage_error>(&parsed)) {
        return fail(error->text);
    }
    if (const auto* printed = std::get_if<gateway::printed_text>(&parsed)) {
        gateway::print(printed->text);
        return EXIT_SUCCESS;
    }
    return carry_out(std::get<gateway::options>(parsed));
}
