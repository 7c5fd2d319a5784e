// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/termination_watch.h"

#include <csignal>

#include <sys/signalfd.h>
#include <unistd.h>

namespace gateway {

namespace {

int open_signal_descriptor() {
    sigset_t watched;
    sigemptyset(&watched);
    sigaddset(&watched, SIGTERM);
    sigaddset(&watched, SIGINT);
    ::sigprocmask(SIG_BLOCK, &watched, nullptr);
    return ::signalfd(-1, &watched, SFD_NONBLOCK | SFD_CLOEXEC);
}

} // namespace

termination_watch::termination_watch()
    : descriptor_(open_signal_descriptor()), notifier_(descriptor_, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_.setEnabled(false);
        emit requested();
    });
}

termination_watch::~termination_watch() {
    notifier_.setEnabled(false);
    ::close(descriptor_);
}

} // namespace gateway
