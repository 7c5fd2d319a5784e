// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/responder.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <stdexcept>

namespace {

sockaddr_in here(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void send_at_once(int connection) {
    const int on = 1;
    setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

bool takes(int listener, int port) {
    const sockaddr_in address = here(port);
    return bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

[[noreturn]] void answer(int connection) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    send_at_once(connection);
    constexpr std::array accepted{'1', '\0'};
    std::array<char, 4096> frame{};
    while (recv(connection, frame.data(), frame.size(), 0) > 0) {
        send(connection, accepted.data(), accepted.size(), MSG_NOSIGNAL);
    }
    _exit(0);
}

[[noreturn]] void serve(int listener) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGCHLD, SIG_IGN);
    for (;;) {
        const int connection = accept(listener, nullptr, nullptr);
        if (fork() == 0) {
            answer(connection);
        }
        close(connection);
    }
}

} // namespace

responder::responder() {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    // The gateway's port is kept as a 16-bit number: those that the system gives out are too large.
    constexpr int first_port = 20000;
    constexpr int last_port = 32767;
    for (port_ = first_port + getpid() % 10000; !takes(listener, port_); ++port_) {
        if (port_ == last_port) {
            throw std::runtime_error("no port is free");
        }
    }
    listen(listener, 4);
    process_ = fork();
    if (process_ == 0) {
        serve(listener);
    }
    close(listener);
}

responder::~responder() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

int connect_to(int port) {
    const int connection = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = here(port);
    if (connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        throw std::runtime_error("cannot connect");
    }
    send_at_once(connection);
    return connection;
}
