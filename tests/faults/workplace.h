// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "messaging/gateway_frame.h"
#include "platform/connection_pool.h"
#include "tests/support/test_database.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTcpSocket>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <list>

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
        return QTest::qWaitFor(done, limit_ms) ? QString::fromUtf8(readLine().chopped(1))
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

/// A database with messages to send, the gateway with its journal, the clients, and the figures.
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

    /// The disk of the first client is full, somebody else writes to the database, or the gateway
    /// is gone; or that is over.
    void trouble(const QByteArray& name, bool begins) {
        if (name == "disk full") {
            const rlimit limit{begins ? 0 : RLIM_INFINITY, RLIM_INFINITY};
            const auto first = static_cast<pid_t>(clients.front().processId());
            ::prlimit(first, RLIMIT_FSIZE, &limit, nullptr);
        } else if (name == "gateway killed") {
            begins ? static_cast<void>(kills += gateway_->end()) : start_gateway();
        } else if (begins) {
            other_.emplace(path()).execute_script("BEGIN IMMEDIATE");
        } else {
            other_.reset();
        }
    }

    /// Waits until the gateway has got so many more messages, or all. A client that ended, as one
    /// does whose link is in error, is started again.
    [[nodiscard]] bool progress(qsizetype more = 1) {
        read_journal();
        const qsizetype wanted = received_.size() + more;
        return wait_for([this, wanted] { return received_.size() >= wanted || lost() == 0; });
    }
    /// The same until no more are pending than may stay so. All have arrived then, but for what is
    /// under way when a late answer counted for it, and the database is sound.
    [[nodiscard]] bool finish(int may_stay = 0) {
        const auto pending = QStringLiteral("select count(*) from sendsms where sendisok = 0");
        return wait_for([&] { return value(pending).toInt() <= may_stay; }) &&
               QTest::qWaitFor([this] { return read_journal(), lost() == 0; }, 30'000) &&
               is_sound();
    }

    /// Puts a stroke into the journal, behind all that was sent so far. What the client had just
    /// sent over its own connection may come after the first one, but not after the second.
    void mark_stroke() {
        QTcpSocket socket;
        socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port_));
        for (int i = 0; i < 2; ++i) {
            socket.write(
                gateway_frame::to_bytes(gateway_frame::outgoing(QStringLiteral("1"), stroke_)));
            socket.waitForReadyRead();
            socket.readAll();
            read_journal();
            strokes_ += last_.remove(stroke_) ? 1 : 0;
        }
    }
    [[nodiscard]] int repeated() const {
        return static_cast<int>(received_.size() - last_.size()) - strokes_;
    }
    /// Messages that came again though they had not been the last before a stroke.
    [[nodiscard]] QStringList needlessly_repeated() const {
        QStringList texts;
        for (qsizetype i = 0; i < received_.size(); ++i) {
            if (last_.value(received_[i], i) != i && received_.value(i + 1) != stroke_) {
                texts.append(received_[i]);
            }
        }
        return texts;
    }

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
            const auto words = QStringLiteral("--listen 127.0.0.1:%1 --journal %2 %3")
                                   .arg(QString::number(port_), journal_.fileName(), options_);
            gateway_ =
                std::make_unique<process>(QStringLiteral("/../bin/smsgateway"), words.split(u' '));
        } while (gateway_->line().isEmpty() && ++port_ < 32'767);
        if (!journal_.isOpen()) {
            journal_.open(QIODevice::ReadOnly);
        }
    }

    bool wait_for(const std::function<bool()>& condition) {
        const auto reached = [&] {
            if (clients.front().state() == QProcess::NotRunning) {
                clients.pop_front();
                start_client();
            }
            read_journal();
            return condition();
        };
        return QTest::qWaitFor(reached, 10 * process::watchdog_ms);
    }

    void read_journal() {
        for (QByteArray line = journal_.readLine(); !line.isEmpty(); line = journal_.readLine()) {
            // What a slow gateway reads in one go it takes for one message: there are no frames.
            const QString read = QJsonDocument::fromJson(line)[u"text"].toString();
            for (const QString& text : read.split(QStringLiteral("1113912345678"))) {
                last_.insert(text, received_.size());
                received_.append(text);
            }
        }
    }
    [[nodiscard]] int lost() const { return messages_ - static_cast<int>(last_.size()); }

    int messages_;
    QString options_;
    QString timeout_ms_;
    int checks_ = 0;
    int strokes_ = 0;
    QString stroke_ = QStringLiteral("-");
    QStringList received_;
    QHash<QString, qsizetype> last_; ///< where each text stands last, without strokes
    QFile journal_{folder() + QStringLiteral("/journal")};
    std::unique_ptr<process> gateway_;
    int port_ = 20'000 + static_cast<int>(QCoreApplication::applicationPid() % 12'000);
    std::optional<SqliteDatabase> other_;
};
