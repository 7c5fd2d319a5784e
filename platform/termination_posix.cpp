// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/termination.h"

#include <QByteArrayList>
#include <QFile>

#include <array>
#include <csignal>

#include <unistd.h>

namespace {

// Read by the handler; changed only while its signals are held back.
QByteArrayList& half_made() {
    static QByteArrayList names;
    return names;
}

extern "C" void end_cleanly(int signal) {
    for (const QByteArray& name : std::as_const(half_made())) {
        ::unlink(name.constData());
    }
    // Ends as it would have without a handler, so that whoever waits learns why.
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void remove_on_termination(const QStringList& files) {
    constexpr std::array requests{SIGINT, SIGTERM, SIGHUP};
    sigset_t held{};
    sigset_t before{};
    sigemptyset(&held);
    for (const int request : requests) {
        sigaddset(&held, request);
    }
    ::sigprocmask(SIG_BLOCK, &held, &before);
    half_made().clear();
    for (const QString& file : files) {
        half_made().append(QFile::encodeName(file));
    }
    for (const int request : requests) {
        const auto handler = std::signal(request, end_cleanly);
        if (handler == SIG_IGN) { // as nohup wants it
            std::signal(request, SIG_IGN);
        }
    }
    ::sigprocmask(SIG_SETMASK, &before, nullptr);
}
