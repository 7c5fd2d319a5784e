// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/console.h"
#include "gateway/control_channel.h"
#include "gateway/journal.h"
#include "gateway/options.h"
#include "gateway/server.h"
#include "gateway/simulator_backend.h"
#include "gateway/termination_watch.h"
#include "platform/program_language.h"
#include "platform/standard_streams.h"
#include "platform/terminal.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void print(const QString& text) {
    std::fputs(terminal_text(text).constData(), stdout);
    std::fflush(stdout);
}

int fail(const QString& what) {
    gateway::complain(what);
    return EXIT_FAILURE;
}

QString endpoint_text(const QHostAddress& address, quint16 port) {
    const bool is_v6 = address.protocol() == QAbstractSocket::IPv6Protocol;
    return (is_v6 ? u"[%1]:%2"_s : u"%1:%2"_s).arg(address.toString()).arg(port);
}

// Passes the lines of the descriptor to the network as commands.
std::unique_ptr<gateway::control_channel> watch_commands(int descriptor,
                                                         gateway::instant_backend& network) {
    auto channel = std::make_unique<gateway::control_channel>(descriptor);
    const auto complain = [](const QString& reason) {
        gateway::complain(u"command ignored: "_s + reason);
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

int serve(const gateway::options& wanted) {
    gateway::journal journal;
    gateway::simulator_backend network(wanted.simulator);
    gateway::server server(network, journal);
    std::unique_ptr<gateway::control_channel> fifo;

    if (!wanted.journal_path.isEmpty()) {
        const QString reason = journal.open(wanted.journal_path);
        if (!reason.isEmpty()) {
            return fail(u"cannot open the journal %1: %2"_s.arg(wanted.journal_path, reason));
        }
    }
    if (!wanted.control_path.isEmpty()) {
        QString reason;
        const int descriptor = gateway::control_channel::open_fifo(wanted.control_path, reason);
        if (descriptor < 0) {
            return fail(u"cannot open the FIFO %1: %2"_s.arg(wanted.control_path, reason));
        }
        fifo = watch_commands(descriptor, network);
    }
    const QString reason = server.listen(wanted.address, wanted.port);
    if (!reason.isEmpty()) {
        return fail(
            u"cannot listen on %1: %2"_s.arg(endpoint_text(wanted.address, wanted.port), reason));
    }

    print(u"listening on %1\n"_s.arg(endpoint_text(wanted.address, server.port())));
    const auto input = watch_commands(STDIN_FILENO, network);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    fill_standard_streams();
    // A reader of our output that goes away must not end the gateway.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"smsgateway"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(SMSGATEWAY_VERSION));
    speak_users_language(u"smsgateway"_s);
    const gateway::termination_watch termination;
    QObject::connect(&termination, &gateway::termination_watch::requested, &app,
                     &QCoreApplication::quit);

    const auto parsed = gateway::parse_options(QCoreApplication::arguments());
    if (const auto* error = std::get_if<gateway::usage_error>(&parsed)) {
        return fail(error->text);
    }
    if (const auto* printed = std::get_if<gateway::printed_text>(&parsed)) {
        print(printed->text);
        return EXIT_SUCCESS;
    }
    return serve(std::get<gateway::options>(parsed));
}
