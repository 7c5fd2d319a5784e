// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/check_command.h"
#include "gateway/console.h"
#include "gateway/control_channel.h"
#include "gateway/engines.h"
#include "gateway/list_command.h"
#include "gateway/message_commands.h"
#include "gateway/options.h"
#include "gateway/relay.h"
#include "gateway/setting_values.h"
#include "gateway/status_page.h"
#include "gateway/system_calls.h"
#include "gateway/texts.h"
#include "platform/data_error.h"
#include "platform/process_limits.h"
#include "platform/program_language.h"
#include "platform/standard_streams.h"
#include "platform/terminal_application.h"
#include "platform/termination_watch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileSystemWatcher>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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
        gateway::complain(gateway::texts::tr("command ignored: %1").arg(reason));
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

/// Opens the place of the status page and of the networks' calls. While another program has it the
/// gateway does without, and tries again.
void open_calls(gateway::http_server& calls, const gateway::endpoint& place, QTimer& again) {
    const QString fault = calls.listen(place);
    if (fault.isEmpty()) {
        return;
    }
    gateway::complain(
        gateway::texts::tr("no status page and no calls from networks until %1 is free: %2")
            .arg(endpoint_text(place), fault));
    again.callOnTimeout(&again, [&calls, &again, place] {
        if (calls.listen(place).isEmpty()) {
            again.stop();
        }
    });
    again.start(10s);
}

/// The commands of the FIFO that is wanted, if there is one; the reason if it cannot be opened.
QString watch_fifo(const QString& path, gateway::backend& network,
                   std::unique_ptr<gateway::control_channel>& channel) {
    QString reason;
    const int descriptor = path.isEmpty() ? -1 : gateway::control_channel::open_fifo(path, reason);
    if (descriptor >= 0) {
        channel = watch_commands(descriptor, network);
    }
    return reason.isEmpty() ? reason
                            : gateway::texts::tr("cannot open the FIFO %1: %2").arg(path, reason);
}

int serve(const gateway::options& wanted) {
    const termination_watch termination;
    const gateway::settings& values = wanted.values;
    gateway::system_clock time;
    gateway::store store(values.gateway.state_dir, gateway::store::user::daemon);
    gateway::http_server calls;
    QTimer open_again;
    if (values.http.on &&
        (values.http.page || values.gateway.engine == gateway::engine_name::kannel)) {
        open_calls(calls, values.http.listen, open_again);
    }
    const auto network = gateway::make_engine(values, time, &store, &calls);
    std::unique_ptr<gateway::control_channel> fifo;
    if (const QString fault = watch_fifo(wanted.control_path, *network, fifo); !fault.isEmpty()) {
        return fail(fault);
    }
    gateway::relay relay(store, *network, time, values);
    std::optional<gateway::status_page> page;
    if (values.http.page) {
        page.emplace(calls, store, *network, relay.clients(), time,
                     gateway::name_of(values.gateway.engine));
    }
    const QString reason = open_door(relay.clients(), values.gateway.listen);
    if (!reason.isEmpty()) {
        return fail(gateway::texts::tr("cannot listen on %1: %2")
                        .arg(endpoint_text(values.gateway.listen), reason));
    }
    relay.start();
    // Programs wait for this line.
    gateway::print(u"listening on %1\n"_s.arg(endpoint_text(relay.clients().place())));
    gateway::tell_service_manager("READY=1");
    const auto nudges = watch_nudges(values.gateway.state_dir, relay);
    const auto input = watch_commands(STDIN_FILENO, *network);
    const auto end = [&relay] {
        gateway::tell_service_manager("STOPPING=1");
        relay.end([] { QCoreApplication::quit(); });
    };
    QObject::connect(&termination, &termination_watch::requested, &calls, end,
                     Qt::SingleShotConnection);
    return QCoreApplication::exec();
}

int carry_out(const gateway::options& wanted) {
    switch (wanted.wanted) {
    case gateway::task::check:
        return gateway::check_settings(wanted.values);
    case gateway::task::list:
        return gateway::list_messages(wanted);
    case gateway::task::show:
        return gateway::show_message(wanted);
    case gateway::task::resend:
        return gateway::resend_message(wanted);
    case gateway::task::drop:
        return gateway::drop_message(wanted);
    case gateway::task::serve:
        break;
    }
    try {
        return serve(wanted);
    } catch (const DataError& error) {
        return fail(gateway::texts::tr("cannot use the store in %1: %2")
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
