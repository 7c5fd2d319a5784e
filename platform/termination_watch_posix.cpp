// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/termination_watch.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int again_ms = 200;
constexpr std::array wishes{SIGTERM, SIGINT, SIGHUP};

// A pipe and not a signal descriptor: the toolkit has threads by now, and what only this one blocks
// would end the process through them.
volatile std::sig_atomic_t writing_end = -1;

void tell_event_loop(int /*wish*/) {
    const int error = errno;
    [[maybe_unused]] const ssize_t told = ::write(writing_end, "", 1); // a full pipe has told it
    errno = error;
}

void take_over(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int wish : wishes) {
        struct sigaction before = {};
        ::sigaction(wish, nullptr, &before);
        const bool outlives_terminal = wish == SIGHUP && before.sa_handler == SIG_IGN; // "nohup"
        if (!outlives_terminal) {
            ::sigaction(wish, &action, nullptr);
        }
    }
}

int open_pipe() {
    std::array<int, 2> ends{-1, -1};
    if (::pipe(ends.data()) == 0) {
        for (const int end : ends) {
            ::fcntl(end, F_SETFD, FD_CLOEXEC);
            ::fcntl(end, F_SETFL, O_NONBLOCK);
        }
    }
    writing_end = ends[1];
    return ends[0];
}

} // namespace

termination_watch::termination_watch(QObject* parent)
    : QObject(parent),
      descriptor_(open_pipe()),
      notifier_(std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read)) {
    again_.setInterval(again_ms);
    connect(&again_, &QTimer::timeout, this, &termination_watch::requested);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        notifier_->setEnabled(false);
        again_.start();
        emit requested();
    });
    take_over(tell_event_loop);
}

termination_watch::~termination_watch() {
    take_over(SIG_DFL);
    notifier_.reset();
    ::close(descriptor_);
    ::close(writing_end);
}
