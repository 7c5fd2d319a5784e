// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/system_calls.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace gateway {

namespace {

qint64 milliseconds_of(clockid_t source) {
    timespec time{};
    ::clock_gettime(source, &time);
    return qint64{time.tv_sec} * 1'000 + time.tv_nsec / 1'000'000;
}

} // namespace

qint64 milliseconds_since_boot() {
    return milliseconds_of(CLOCK_BOOTTIME);
}

qint64 milliseconds_slept() {
    return milliseconds_of(CLOCK_BOOTTIME) - milliseconds_of(CLOCK_MONOTONIC);
}

std::optional<qint64> unacknowledged_bytes(qintptr socket) {
    int count = 0;
    if (::ioctl(static_cast<int>(socket), SIOCOUTQ, &count) != 0) {
        return std::nullopt;
    }
    return count;
}

std::optional<qint64> segment_size(qintptr socket) {
    int size = 0;
    socklen_t length = sizeof size;
    if (::getsockopt(static_cast<int>(socket), IPPROTO_TCP, TCP_MAXSEG, &size, &length) != 0) {
        return std::nullopt;
    }
    return size;
}

bool has_other_end_left(qintptr socket) {
    pollfd asked{.fd = static_cast<int>(socket), .events = POLLRDHUP, .revents = 0};
    return ::poll(&asked, 1, 0) > 0;
}

void end_sending(qintptr socket) {
    ::shutdown(static_cast<int>(socket), SHUT_WR);
}

int descriptor_limit() {
    rlimit limit{};
    constexpr rlim_t enough = 65'536;
    const bool known = ::getrlimit(RLIMIT_NOFILE, &limit) == 0;
    return static_cast<int>(known && limit.rlim_cur < enough ? limit.rlim_cur : enough);
}

std::optional<qintptr> inherited_listener() {
    constexpr int first_inherited = 3;
    const char* receiver = std::getenv("LISTEN_PID");
    const char* count = std::getenv("LISTEN_FDS");
    if (receiver == nullptr || count == nullptr || std::atoi(receiver) != ::getpid() ||
        std::atoi(count) < 1) {
        return std::nullopt;
    }
    ::fcntl(first_inherited, F_SETFD, FD_CLOEXEC);
    return first_inherited;
}

void tell_service_manager(const char* state) {
    const char* path = std::getenv("NOTIFY_SOCKET");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path == nullptr || std::strlen(path) < 2 || std::strlen(path) >= sizeof address.sun_path) {
        return;
    }
    std::memcpy(address.sun_path, path, std::strlen(path) + 1);
    if (*path == '@') { // a name that is in no folder
        address.sun_path[0] = '\0';
    }
    const int socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const auto length = offsetof(sockaddr_un, sun_path) + std::strlen(path);
    ::sendto(socket, state, std::strlen(state), MSG_NOSIGNAL,
             reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(length));
    ::close(socket);
}

} // namespace gateway
