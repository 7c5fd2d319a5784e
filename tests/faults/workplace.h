// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/connection_pool.h"
#include "platform/database/physical_database.h"
#include "tests/support/test_database.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <list>
#include <optional>

#include <sys/prctl.h>
#include <sys/resource.h>

/// A program of this build, which ends with the test.
class process : public QProcess {
public:
    static constexpr int watchdog_ms = 120'000;

    process(const QString& program, const QStringList& arguments) {
        setProcessChannelMode(ForwardedErrorChannel);
        setChildProcessModifier([] {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            std::signal(SIGXFSZ, SIG_IGN); // a full disk is an error and not the end
        });
        start(QCoreApplication::applicationDirPath() + program, arguments);
        waitForStarted();
    }
    ~process() override { end(); }
    Q_DISABLE_COPY_MOVE(process)

    /// The next line that it prints; empty when it ends first or prints none within the limit.
    [[nodiscard]] QString line(int limit_ms = watchdog_ms) {
        const auto done = [this] { return canReadLine() || state() == NotRunning; };
        return QTest::qWaitFor(done, limit_ms)
                   ? QString::fromUtf8(readLine()).remove(QLatin1Char('\n'))
                   : QString();
    }
    /// It prints this, perhaps after other lines.
    [[nodiscard]] bool says(const QString& wanted) {
        QString said = line();
        while (said != wanted && !said.isEmpty()) {
            said = line();
        }
        return said == wanted;
    }

    /// Kills it, after some time if one is given; 0 when it had ended by then, else 1.
    int end(int after_ms = 0) {
        const bool ended = state() == NotRunning || (after_ms > 0 && waitForFinished(after_ms));
        kill();
        waitForFinished();
        return ended ? 0 : 1;
    }
    void signal(int number) const { ::kill(static_cast<pid_t>(processId()), number); }
};

/// A database with messages to send, the gateway with its store, the clients, and the figures.
class workplace : public test_database {
public:
    std::list<process> clients;
    int kills = 0;
    int starts = 0; ///< of clients that stay

    explicit workplace(int messages, QString gateway_options = QStringLiteral("--delay 2"),
                       QString timeout_ms = QStringLiteral("600000"))
        : messages_(messages),
          options_(std::move(gateway_options)),
          timeout_ms_(std::move(timeout_ms)) {
        start_gateway();
        execute(QStringLiteral("update parameters set ip = '127.0.0.1', port = %1").arg(port_));
        execute(QStringLiteral(
                    "insert into sendsms (mobile, sms, sendisok, stime) with recursive n(i) as "
                    "(values (1) union all select i + 1 from n where i < %1) "
                    "select '13912345678', i, 0, '2024' from n where %1 > 0")
                    .arg(messages));
        connection_pool::clear();
    }
    /// Leaves the line that scripts/soak.sh adds up.
    ~workplace() {
        std::printf("figures|%s, %s|%d|%d|%d|%d|%d|%d\n", QTest::currentTestFunction(),
                    QTest::currentDataTag(), kills, starts, messages_, repeated(), lost(), checks_);
        std::fflush(stdout);
    }
    Q_DISABLE_COPY_MOVE(workplace)

    process& start_client(const QStringList& phrase = {}) {
        ++starts;
        return clients.emplace_back(QStringLiteral("/fault_client"),
                                    QStringList{folder(), timeout_ms_} + phrase);
    }

    /// The disk of the first client is full, somebody else writes to the database, the gateway is
    /// gone or stands still; or that is over.
    void trouble(const QByteArray& name, bool begins) {
        if (name == "disk full") {
            const rlimit limit{begins ? 0 : RLIM_INFINITY, RLIM_INFINITY};
            const auto first = static_cast<pid_t>(clients.front().processId());
            ::prlimit(first, RLIMIT_FSIZE, &limit, nullptr);
        } else if (name == "gateway killed") {
            begins ? static_cast<void>(kills += gateway_->end()) : start_gateway();
        } else if (name == "gateway stands still") {
            gateway_->signal(begins ? SIGSTOP : SIGCONT);
        } else if (begins) {
            other_ = open_database(path());
            other_->begin(physical_database::purpose::writing);
        } else {
            other_.reset();
        }
    }

    /// Waits until the gateway has got so many more messages, or all. A client that ended, as one
    /// does whose link is in error, is started again.
    [[nodiscard]] bool progress(qsizetype more = 1) {
        read_store();
        const qsizetype wanted = received_ + more;
        return wait_for([this, wanted] { return received_ >= wanted || lost() == 0; });
    }
    /// The same until none is pending. All have arrived then, none of them twice or changed, and
    /// the database is sound.
    [[nodiscard]] bool finish() {
        const auto pending = QStringLiteral("select count(*) from sendsms where sendisok = 0");
        return wait_for([&] { return value(pending) == 0; }) &&
               QTest::qWaitFor([this] { return read_store(), lost() == 0; }, 30'000) &&
               garbled() == 0 && is_sound();
    }

    /// Messages that the gateway took twice, or handed to its network twice.
    [[nodiscard]] int repeated() {
        const auto again =
            QStringLiteral("SELECT count(*) - count(DISTINCT message) FROM simulated");
        return static_cast<int>(received_ - texts_.size() + store().number(again));
    }
    /// Texts that the gateway took and nobody wrote.
    [[nodiscard]] int garbled() const { return garbled_; }

    /// The database is sound for somebody who opens it now.
    [[nodiscard]] bool is_sound() {
        ++checks_;
        connection_pool::clear();
        const auto result =
            value(QStringLiteral("select integrity_check from pragma_integrity_check"));
        connection_pool::clear();
        return result == QStringLiteral("ok");
    }

private:
    void start_gateway() {
        do {
            const auto words = QStringLiteral("--no-page --listen 127.0.0.1:%1 --state %2 %3")
                                   .arg(QString::number(port_), state_, options_);
            gateway_ =
                std::make_unique<process>(QStringLiteral("/../bin/smsgateway"), words.split(u' '));
        } while (gateway_->line().isEmpty() && ++port_ < 32'767);
    }

    bool wait_for(const std::function<bool()>& condition) {
        const auto reached = [&] {
            if (clients.front().state() == QProcess::NotRunning) {
                clients.pop_front();
                start_client();
            }
            read_store();
            return condition();
        };
        return QTest::qWaitFor(reached, 10 * process::watchdog_ms);
    }

    physical_database& store() {
        if (!store_) {
            store_ = open_database(state_ + QStringLiteral("/relay.db"));
        }
        return *store_;
    }

    void read_store() {
        const row_store rows = store().rows(
            QStringLiteral("SELECT id, text FROM message WHERE id > ? ORDER BY id"), {last_id_});
        for (qsizetype row = 0; row < rows.rows(); ++row) {
            last_id_ = rows.integer(row, 0);
            ++received_;
            const QString text = rows.text(row, 1);
            texts_.insert(text);
            garbled_ += text.toInt() >= 1 && text.toInt() <= messages_ ? 0 : 1;
        }
    }
    [[nodiscard]] int lost() const { return messages_ - static_cast<int>(texts_.size()); }

    int messages_;
    QString options_;
    QString timeout_ms_;
    int checks_ = 0;
    qint64 last_id_ = 0;
    qsizetype received_ = 0;
    int garbled_ = 0;
    QSet<QString> texts_;
    const QString state_ = folder() + QStringLiteral("/gateway");
    std::unique_ptr<physical_database> store_;
    std::unique_ptr<process> gateway_;
    int port_ = 20'000 + static_cast<int>(QCoreApplication::applicationPid() % 12'000);
    std::unique_ptr<physical_database> other_;
};
