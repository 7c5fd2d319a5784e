// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/plain_database.h"
#include "bench/responder.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <string>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int slices = 40;
constexpr int messages_a_slice = 100;
constexpr int few = 1'000;
constexpr int many = 100'000;

/// One client's connection; a message and its verdict at a time.
class connection {
public:
    explicit connection(int port) : socket_(connect_to(port)) {}
    ~connection() { close(socket_); }
    Q_DISABLE_COPY_MOVE(connection)

    void send_messages(int count) {
        for (int i = 0; i < count; ++i) {
            const std::u16string frame =
                u"1113912345678 message " + to_utf16(std::to_string(++sent_));
            std::array<char, 64> answer{};
            if (send(socket_, frame.data(), frame.size() * 2, 0) < 0 ||
                recv(socket_, answer.data(), answer.size(), 0) < 1 || answer[0] != '1') {
                throw std::runtime_error("no verdict");
            }
        }
    }

private:
    static std::u16string to_utf16(const std::string& digits) {
        return {digits.begin(), digits.end()};
    }

    int socket_;
    int sent_ = 0;
};

/// The gateway as it is delivered, with its simulator, over a store of its own.
class gateway_side {
public:
    gateway_side() {
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.start(QCoreApplication::applicationDirPath() + u"/smsgateway"_s,
                       {u"--no-page"_s, u"--listen"_s, u"127.0.0.1:0"_s, u"--state"_s,
                        folder_.path(), u"--report-delay"_s, u"1000"_s});
        if (!process_.waitForReadyRead()) {
            throw std::runtime_error("the gateway does not start");
        }
        link_ =
            std::make_unique<connection>(process_.readLine().trimmed().split(':').last().toInt());
    }
    ~gateway_side() {
        process_.kill();
        process_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(gateway_side)

    connection& link() { return *link_; }

    /// Settled messages, as they gather over the years.
    void fill(int rows) const {
        plain_database database((folder_.path() + u"/relay.db"_s).toStdString());
        database.execute(
            "INSERT INTO message (client, mobile, number, text, digest, taken_at, answer, state, "
            "since, attempts, done_at) WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 "
            "FROM n WHERE i < " +
            std::to_string(rows) +
            ") SELECT '127.0.0.1', '13912345678', '+8613912345678', 'message ' || i, 'd' || i, "
            "unixepoch() * 1000 - i, 'confirmed', 'delivered', unixepoch() * 1000 - i, 1, "
            "unixepoch() * 1000 - i FROM n");
        database.execute("INSERT INTO event (message, at, fate, ref, reason) SELECT id, taken_at, "
                         "'delivered', '', '' FROM message");
    }

    /// The memory that it has taken at most, in megabytes.
    [[nodiscard]] double peak_memory() const {
        QFile status(u"/proc/%1/status"_s.arg(process_.processId()));
        if (status.open(QIODevice::ReadOnly)) {
            for (const QByteArray& line : status.readAll().split('\n')) {
                if (line.startsWith("VmHWM:")) {
                    return line.simplified().split(' ').at(1).toDouble() / 1024;
                }
            }
        }
        throw std::runtime_error("the gateway's memory cannot be read");
    }

private:
    QTemporaryDir folder_;
    QProcess process_;
    std::unique_ptr<connection> link_;
};

/// The same by hand: commits one row a message, as durably, and answers.
class twin_side {
public:
    twin_side() : listener_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* const place = reinterpret_cast<sockaddr*>(&address);
        if (bind(listener_, place, length) != 0 || listen(listener_, 1) != 0 ||
            getsockname(listener_, place, &length) != 0) {
            throw std::runtime_error("the twin cannot listen");
        }
        server_ = std::thread([this] { serve(); });
        link_ = std::make_unique<connection>(ntohs(address.sin_port));
    }
    ~twin_side() {
        link_.reset(); // which ends the server
        server_.join();
        close(listener_);
    }
    Q_DISABLE_COPY_MOVE(twin_side)

    connection& link() { return *link_; }

private:
    void serve() {
        const int client = accept(listener_, nullptr, nullptr);
        const int on = 1;
        setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        plain_database database((folder_.path() + u"/twin.db"_s).toStdString());
        database.execute("CREATE TABLE message (id INTEGER PRIMARY KEY, text TEXT)");
        const auto insert = database.prepare("INSERT INTO message (text) VALUES (?)");
        constexpr std::array accepted{'1', '\0'};
        std::array<char, 4096> frame{};
        for (auto size = recv(client, frame.data(), frame.size(), 0); size > 0;
             size = recv(client, frame.data(), frame.size(), 0)) {
            sqlite3_bind_text16(insert.get(), 1, frame.data(), static_cast<int>(size),
                                SQLITE_STATIC);
            database.step(insert);
            sqlite3_reset(insert.get());
            send(client, accepted.data(), accepted.size(), MSG_NOSIGNAL);
        }
        close(client);
    }

    QTemporaryDir folder_;
    int listener_;
    std::thread server_;
    std::unique_ptr<connection> link_;
};

double messages_a_second(connection& link) {
    return 1'000 * messages_a_slice /
           milliseconds([&link] { link.send_messages(messages_a_slice); });
}

} // namespace

void bench_gateway() {
    gateway_side small;
    gateway_side large;
    small.fill(few);
    large.fill(many);
    twin_side twin;
    std::array<std::vector<double>, 3> rates;
    for (int slice = 0; slice < slices; ++slice) {
        rates[0].push_back(messages_a_second(small.link()));
        rates[1].push_back(messages_a_second(twin.link()));
        rates[2].push_back(messages_a_second(large.link()));
    }
    print({.operation = "gateway: message to verdict",
           .rows = few,
           .ours = median(rates[0]),
           .twin = median(rates[1]),
           .unit = "/s",
           .kind = bound::ratio_at_least,
           .limit = 0.7});
    print({.operation = "gateway: 100,000 kept against 1,000",
           .rows = many,
           .ours = median(rates[2]),
           .twin = median(rates[0]),
           .unit = "/s",
           .kind = bound::ratio_at_least,
           .limit = 0.9});
    print({.operation = "gateway: memory",
           .rows = many,
           .ours = large.peak_memory(),
           .unit = "MB",
           .kind = bound::at_most,
           .limit = 40});
}
