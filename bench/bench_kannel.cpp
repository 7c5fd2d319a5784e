// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/plain_database.h"
#include "bench/responder.h"
#include "tests/gateway/kannel_stage.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QThread>

#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int slices = 10;
constexpr int messages_a_slice = 300;
constexpr int window = 10;
const auto secret = u"0123456789abcdef"_s;

quint16 free_port() {
    QTcpServer probe;
    return probe.listen(QHostAddress::LocalHost) ? probe.serverPort() : 0;
}

/// Reads one message of HTTP with a length from a socket; false when the other end is gone.
bool read_message(int socket) {
    std::string bytes;
    std::array<char, 4'096> chunk{};
    for (;;) {
        const auto head = bytes.find("\r\n\r\n");
        if (head != std::string::npos) {
            const auto length = bytes.find("Content-Length: ");
            const std::size_t body = length > head ? 0 : std::stoul(bytes.substr(length + 16, 10));
            if (bytes.size() >= head + 4 + body) {
                return true;
            }
        }
        const auto count = recv(socket, chunk.data(), chunk.size(), 0);
        if (count <= 0) {
            return false;
        }
        bytes.append(chunk.data(), static_cast<std::size_t>(count));
    }
}

void write_all(int socket, const std::string& bytes) {
    if (send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL) !=
        static_cast<ssize_t>(bytes.size())) {
        throw std::runtime_error("Kannel takes nothing");
    }
}

/// What the plain loop is called back at: says yes to every report, a thread a connection.
class report_taker {
public:
    report_taker() : listener_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* const place = reinterpret_cast<sockaddr*>(&address);
        if (bind(listener_, place, length) != 0 || listen(listener_, 64) != 0 ||
            getsockname(listener_, place, &length) != 0) {
            throw std::runtime_error("the twin cannot listen");
        }
        port = ntohs(address.sin_port);
        std::thread([listener = listener_] {
            for (int link = accept(listener, nullptr, nullptr); link >= 0;
                 link = accept(listener, nullptr, nullptr)) {
                std::thread(answer, link).detach();
            }
        }).detach();
    }

    int port = 0;

private:
    static void answer(int link) {
        while (read_message(link)) {
            write_all(link, "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nOK");
        }
        close(link);
    }

    int listener_; ///< until the process ends
};

/// Hands messages to Kannel over as many kept connections as the gateway has.
class plain_loop {
public:
    explicit plain_loop(int sendsms_port) {
        for (int i = 0; i < window; ++i) {
            links_.push_back(connect_to(sendsms_port));
        }
    }

    void hand_over(int count) {
        std::atomic<int> left = count;
        std::vector<std::thread> threads;
        for (const int link : links_) {
            threads.emplace_back([this, link, &left] {
                while (left-- > 0) {
                    write_all(link, request_);
                    read_message(link);
                }
            });
        }
        for (std::thread& one : threads) {
            one.join();
        }
    }

private:
    report_taker reports_;
    std::vector<int> links_;
    std::string request_ =
        "GET /cgi-bin/sendsms?username=smsgateway&password=p%20a%26ss%3D1%25&from=10690&smsc=fake"
        "&to=%2B8613912345678&text=message&dlr-mask=31&dlr-url=http%3A%2F%2F127.0.0.1%3A" +
        std::to_string(reports_.port) +
        "%2Freport%3Fid%3D7%26type%3D%25d%26ans%3D%25A%26fid%3D%25F HTTP/1.1\r\nHost: kannel\r\n"
        "Connection: keep-alive\r\n\r\n";
};

/// The gateway as it is delivered, in front of the same Kannel.
class gateway_loop {
public:
    gateway_loop(const kannel_stage& kannel, quint16 calls) {
        QFile file(folder_.filePath(u"settings.ini"_s));
        if (!file.open(QIODevice::WriteOnly)) {
            throw std::runtime_error("no settings");
        }
        file.write(u"[gateway]\nengine = kannel\n[kannel]\nsendsms = "
                   "http://127.0.0.1:%1/cgi-bin/sendsms\nusername = smsgateway\npassword = \"p "
                   "a&ss=1%\"\nfrom = 10690\nsmsc = fake\nwindow = %2\n[http]\npage = no\nlisten = "
                   "127.0.0.1:%3\nsecret = %4\n"_s
                       .arg(QString::number(kannel.sendsms_port), QString::number(window),
                            QString::number(calls), secret)
                       .toUtf8());
        file.close();
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.start(QCoreApplication::applicationDirPath() + u"/smsgateway"_s,
                       {u"--config"_s, file.fileName(), u"--listen"_s, u"127.0.0.1:0"_s,
                        u"--store"_s, folder_.filePath(u"store"_s)});
        if (!process_.waitForReadyRead()) {
            throw std::runtime_error("the gateway does not start");
        }
    }
    ~gateway_loop() {
        process_.kill();
        process_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(gateway_loop)

    /// Messages that were taken before; how fast they are taken is measured by itself.
    void hand_over(int count) const {
        plain_database database(folder_.filePath(u"store/relay.db"_s).toStdString());
        database.execute(
            "INSERT INTO message (client, mobile, number, text, digest, taken_at, answer, state, "
            "since, next_at) WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n "
            "WHERE i < " +
            std::to_string(count) +
            ") SELECT '', '13912345678', '+8613912345678', 'message', '', 0, 'confirmed', "
            "'queued', 0, 0 FROM n");
        QFile nudge(folder_.filePath(u"store/relay.nudge"_s));
        if (!nudge.open(QIODevice::WriteOnly) || nudge.write("\n") != 1) {
            throw std::runtime_error("no nudge");
        }
    }

private:
    QTemporaryDir folder_;
    QProcess process_;
};

/// How many messages Kannel has given to its centres.
int given(const kannel_stage& kannel) {
    const int link = connect_to(kannel.admin_port);
    write_all(link, "GET /status.xml?password=CHANGE-status HTTP/1.0\r\n\r\n");
    std::string bytes;
    std::array<char, 65'536> chunk{};
    for (ssize_t count = 1; count > 0;) {
        count = recv(link, chunk.data(), chunk.size(), 0);
        bytes.append(chunk.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    close(link);
    static const QRegularExpression sent(u"<sms>.*?<sent><total>(\\d+)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    return sent.match(QString::fromStdString(bytes)).captured(1).toInt();
}

template <class Loop>
double messages_a_second(Loop& loop, const kannel_stage& kannel) {
    auto work = std::async(std::launch::async, [&] {
        const int wanted = given(kannel) + messages_a_slice;
        const double taken = milliseconds([&] {
            loop.hand_over(messages_a_slice);
            while (given(kannel) < wanted) {
                QThread::msleep(2);
            }
        });
        QThread::msleep(500); // for the reports
        return 1'000 * messages_a_slice / taken;
    });
    // Kannel stands still when nobody reads what it says.
    while (work.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
        QCoreApplication::processEvents();
    }
    return work.get();
}

} // namespace

void bench_kannel() {
    const quint16 calls = free_port();
    kannel_stage kannel(u"http://127.0.0.1:%1/kannel/%2/"_s.arg(calls).arg(secret));
    kannel.start_bearerbox();
    kannel.start_smsbox();
    kannel.start_fakesmsc();
    gateway_loop gateway(kannel, calls);
    plain_loop plain(kannel.sendsms_port);
    const medians rates = in_turn(
        slices, [&] { return messages_a_second(gateway, kannel); },
        [&] { return messages_a_second(plain, kannel); });
    print({.operation = "gateway: through Kannel to its fake centre",
           .rows = messages_a_slice,
           .ours = rates.ours,
           .twin = rates.twin,
           .unit = "/s",
           .kind = bound::ratio_at_least,
           .limit = 0.8});
}
