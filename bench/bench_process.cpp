// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_store.h"
#include "bench/benches.h"
#include "bench/measure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// One of the processes that are measured, from its start to the object's end.
class probe {
public:
    probe(const QString& kind, const QString& folder) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), {u"--probe"_s, kind, folder});
    }
    ~probe() {
        process_.kill();
        process_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(probe)

    void wait_for_end() {
        if (!process_.waitForFinished() || process_.exitCode() != 0) {
            throw std::runtime_error("a probe failed");
        }
    }

    /// Until it says that it has come to rest.
    void wait_for_rest() {
        if (!process_.waitForReadyRead()) {
            throw std::runtime_error("a probe did not come to rest");
        }
    }

    [[nodiscard]] double resident_megabytes() const {
        return static_cast<double>(
                   entry(u"/proc/%1/status"_s.arg(process_.processId()), "VmRSS:")) /
               1024;
    }

    /// How often any of its threads has gone to sleep so far.
    [[nodiscard]] long sleeps() const {
        const QDir threads(u"/proc/%1/task"_s.arg(process_.processId()));
        long sum = 0;
        for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            sum += entry(threads.filePath(thread + u"/status"_s), "voluntary_ctxt_switches:");
        }
        return sum;
    }

private:
    static long entry(const QString& path, QByteArrayView name) {
        QFile file(path);
        static_cast<void>(file.open(QIODevice::ReadOnly));
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith(name)) {
                return line.sliced(name.size()).simplified().split(' ').first().toLong();
            }
        }
        throw std::runtime_error("no such entry");
    }

    QProcess process_;
};

void bench_start(const bench_store& store) {
    const auto start = [&store](const QString& kind) {
        return [&store, kind] {
            return milliseconds([&] { probe(kind, store.folder()).wait_for_end(); });
        };
    };
    const medians took = in_turn(21, start(u"login"_s), start(u"dialog"_s));
    print({.operation = "process start to the login dialog's first paint",
           .ours = took.ours,
           .twin = took.twin,
           .kind = bound::ratio_at_most,
           .limit = 2});
}

constexpr int watched_seconds = 11;
constexpr int most_polls = 6; // one every two seconds

void print_wake_ups(const std::string& operation, long ours, long twin, int limit) {
    print({.operation = operation,
           .ours = static_cast<double>(ours),
           .twin = static_cast<double>(twin),
           .unit = "",
           .kind = bound::at_most,
           .limit = static_cast<double>(limit)});
}

void print_memory(const std::string& operation, int rows, const probe& ours, const probe& twin,
                  double limit) {
    print({.operation = operation,
           .rows = rows,
           .ours = ours.resident_megabytes(),
           .twin = twin.resident_megabytes(),
           .unit = "MB",
           .kind = bound::at_most,
           .limit = limit});
}

void bench_idle(const bench_store& store) {
    probe still(u"still"_s, store.folder());
    probe polling(u"polling"_s, store.folder());
    probe listing(u"listing"_s, store.folder());
    probe bare(u"bare"_s, store.folder());
    const std::array probes{&still, &polling, &listing, &bare};
    std::array<long, 4> sleeps{};
    for (probe* const each : probes) {
        each->wait_for_rest();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(500)); // the last asleep again
    for (size_t i = 0; i < probes.size(); ++i) {
        sleeps[i] = -probes[i]->sleeps();
    }
    std::this_thread::sleep_for(std::chrono::seconds(watched_seconds));
    for (size_t i = 0; i < probes.size(); ++i) {
        sleeps[i] += probes[i]->sleeps();
    }
    const std::string span = ", wake-ups in " + std::to_string(watched_seconds) + " s";
    print_wake_ups("idle without the poll" + span, sleeps[0], sleeps[3], 0);
    print_wake_ups("idle with a poll every 2 s" + span, sleeps[1], sleeps[3], most_polls);
    print_wake_ups("idle behind a list, poll every 60 s" + span, sleeps[2], sleeps[3], 1);
    print_memory("idle, resident", 0, still, bare, 60);
    print_memory("idle with a list open, resident", most_rows, listing, bare, 90);
}

} // namespace

void bench_process() {
    const bench_store store;
    store.fill_customers(most_rows);
    bench_start(store);
    bench_idle(store);
}
