// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "test_client.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <list>
#include <memory>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class test_gateway_program : public QObject {
    Q_OBJECT

private:
    // Starts the program; started_ is then the line it greets with, or empty if it ended.
    void start(const QStringList& options,
               const QString& program = QString::fromUtf8(SMSGATEWAY_PATH),
               const std::function<void()>& in_child = {}) {
        process_ = std::make_unique<QProcess>();
        process_->setChildProcessModifier(in_child);
        process_->start(program, options);
        started_ = process_->waitForReadyRead() ? process_->readLine() : QByteArray();
    }

    // What a command on a message says; its status stands before it.
    QString decide(const QString& command, const QString& id) {
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QString::fromUtf8(SMSGATEWAY_PATH), {command, id, u"--state"_s, state_});
        program.waitForFinished();
        return QString::number(program.exitCode()) + QString::fromUtf8(program.readAll());
    }

    // Starts the program on a free port and connects to it.
    void serve(const QStringList& options, const std::function<void()>& in_child = {}) {
        start(QStringList{u"--listen"_s, u"127.0.0.1:0"_s, u"--no-page"_s, u"--state"_s, state_} +
                  options,
              QString::fromUtf8(SMSGATEWAY_PATH), in_child);
        QVERIFY(started_.startsWith("listening on 127.0.0.1:"));
        client_ = std::make_unique<test_client>(started_.trimmed().split(':').last().toUShort());
    }

    // The status it ends with, -1 after a crash.
    int exit_code() {
        [this] { QTRY_COMPARE(process_->state(), QProcess::NotRunning); }();
        return process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : -1;
    }

    // State, number and text of the messages that the store holds.
    QString list(const QStringList& options = {}) {
        QProcess lister;
        lister.start(QString::fromUtf8(SMSGATEWAY_PATH),
                     QStringList{u"list"_s, u"--json"_s, u"--store"_s, state_} + options);
        lister.waitForFinished();
        QStringList lines;
        for (const QByteArray& line : lister.readAllStandardOutput().split('\n')) {
            const auto row = QJsonDocument::fromJson(line);
            if (!row.isNull()) {
                last_id_ = QString::number(row[u"id"].toInteger());
                lines.append(row[u"state"].toString() + u' ' + row[u"number"].toString() + u' ' +
                             row[u"text"].toString());
            }
        }
        return lines.join(u'|');
    }

    std::unique_ptr<QTemporaryDir> folder_;
    QString state_;
    const QString message_ = u"1113912345678Hello"_s;
    std::unique_ptr<QProcess> process_;
    std::unique_ptr<test_client> client_;
    QByteArray started_;
    QString last_id_; ///< of those that were listed
    int ended_ = 0;

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        state_ = folder_->filePath(u"new/state"_s);
    }

    void cleanup() {
        if (process_->state() == QProcess::Running) { // ended by either signal in turn
            const int number = ++ended_ % 2 == 0 ? SIGTERM : SIGINT;
            QCOMPARE(::kill(static_cast<pid_t>(process_->processId()), number), 0);
            QCOMPARE(exit_code(), 0);
        }
    }

    void refuses_options_data() {
        QTest::addColumn<QString>("arguments");
        for (const char* arguments :
             {"--backend", "--backend carrier", "--fail-rate 1.01", "--drop-rate -0.1",
              "--fail-rate nan", "--delay -1", "--listen 127.0.0.1:65536", "--listen 300.0.0.1:0",
              "--listen 127.0.0.1:TAKEN", "--state /proc/nowhere", "--control /nowhere/fifo",
              "--control /dev/null", "--config /nowhere", "list --state lost", "list --since noon",
              "show x", "drop", "sing", "check list"}) {
            QTest::newRow(arguments) << QString::fromUtf8(arguments);
        }
    }

    void refuses_options() {
        QFETCH(QString, arguments);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        arguments.replace(u"TAKEN"_s, QString::number(other.serverPort()));
        start(QStringList{u"--state"_s, state_} + arguments.split(u' '));
        QCOMPARE(exit_code(), 1);
        QCOMPARE(started_, QByteArray());
        const QString told = QString::fromUtf8(process_->readAllStandardError());
        QVERIFY2(told.contains(arguments.section(u' ', -1)), qPrintable(told));
    }

    void records_fates_data() {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("state");
        QTest::newRow("accepted") << u"--delay 5"_s << u"accepted"_s;
        QTest::newRow("delivered") << u"--report-delay 5"_s << u"delivered"_s;
        QTest::newRow("undelivered") << u"--report-delay 5 --lose-rate 1"_s << u"failed"_s;
        QTest::newRow("refused") << u"--fail-rate 1"_s << u"failed"_s;
        QTest::newRow("silence") << u"--drop-rate 1"_s << u"unknown"_s;
    }

    // Whatever becomes of a message, it is the gateway's from the answer on, also beyond a kill.
    void records_fates() {
        QFETCH(QString, options);
        QFETCH(QString, state);
        serve(options.split(u' '));
        client_->send(message_);
        QTRY_COMPARE(client_->answers(), u"1"_s);
        process_->kill();
        QCOMPARE(exit_code(), -1);
        QVERIFY(list().endsWith(u"+8613912345678 Hello"_s));
        serve(options.split(u' '));
        QTRY_COMPARE(list(), state + u" +8613912345678 Hello"_s);
        client_->send(u"no number"_s);
        QTRY_VERIFY(client_->answers().endsWith(u'2'));
        QVERIFY(!list().contains(u'|'));
    }

    void obeys_a_person() {
        serve({u"--fail-rate"_s, u"1"_s});
        client_->send(message_);
        QTRY_COMPARE(list({u"--state"_s, u"failed"_s}), u"failed +8613912345678 Hello"_s);
        QCOMPARE(list({u"--since"_s, u"2999-01-01"_s}), QString());
        const QString first = last_id_;
        process_->write("down\n");
        QByteArray told;
        QTRY_VERIFY((told += process_->readAllStandardError()).contains("switched off"));
        QCOMPARE(decide(u"resend"_s, first), u"0"_s);
        QCOMPARE(list(), u"queued +8613912345678 Hello"_s);
        process_->write("up\n");
        QTRY_COMPARE(list(), u"failed +8613912345678 Hello"_s);
        QCOMPARE(decide(u"drop"_s, first),
                 u"1smsgateway: message %1 is failed: nothing is changed\n"_s.arg(first));
        // The daemon is told: it looks when it would not by itself.
        QCOMPARE(decide(u"resend"_s, first), u"0"_s);
        QTRY_VERIFY(decide(u"show"_s, first).contains(u"attempts: 3"));
        QVERIFY(decide(u"show"_s, first).contains(u"  resent\n"));
        process_->write("down\n");
        client_->send(message_ + u"2"_s);
        QTRY_COMPARE(list({u"--state"_s, u"queued"_s}), u"queued +8613912345678 Hello2"_s);
        QCOMPARE(decide(u"drop"_s, last_id_), u"0"_s);
        QVERIFY(list().endsWith(u"dropped +8613912345678 Hello2"_s));
        QCOMPARE(decide(u"show"_s, u"5"_s), u"1smsgateway: there is no message 5\n"_s);
    }

    void outlives_whoever_read_what_it_says() {
        serve({}, [] { // its complaints go into a pipe that nobody reads
            std::array<int, 2> ends{};
            if (::pipe(ends.data()) == 0 && ::dup2(ends[1], STDERR_FILENO) >= 0) {
                ::close(ends[0]);
                ::close(ends[1]);
            }
        });
        process_->write("nonsense\nrecv 8613912345678 there\n");
        QTRY_VERIFY(client_->answers().endsWith(u"there"_s));
    }

    void brings_messages() {
        const QString path = folder_->filePath(u"fifo"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        serve({u"--echo"_s, u"--echo-delay"_s, u"0"_s, u"--control"_s, path});
        process_->write("send me\n\nrecv 86 x\nrecv 8613912345678\nrecv 8610086 bad \xff\n" +
                        QByteArray(200'000, 'x') + "\nrecv 8613912345678 你好 there\r\n");
        process_->closeWriteChannel();
        const QRegularExpression one(u"^013861391234567812\\d{12}你好 there$"_s);
        QTRY_VERIFY(one.match(client_->answers()).hasMatch());
        QByteArray told;
        QTRY_COMPARE((told += process_->readAllStandardError()).count("ignored"), 5);
        for (int i = 1; i <= 2; ++i) { // the FIFO outlives its writer
            QFile fifo(path);
            QVERIFY(fifo.open(QIODevice::WriteOnly | QIODevice::Append));
            fifo.write("recv 10086 again\n");
            fifo.close();
            QTRY_COMPARE(client_->answers().count(u"again"), i);
        }
        client_->send(message_);
        const QRegularExpression echo(u"1013861391234567812\\d{12}回复：Hello$"_s);
        QTRY_VERIFY(echo.match(client_->answers()).hasMatch());
    }

    void serves_a_service_manager() {
        QTcpServer door; // opened by the manager, who also wants to be told
        QVERIFY(door.listen(QHostAddress::LocalHost));
        door.pauseAccepting();
        test_client client(door.serverPort()); // writes two messages before anybody reads
        client.send(message_ + message_);
        QTRY_VERIFY(client.state() == QAbstractSocket::ConnectedState &&
                    client.bytesToWrite() == 0);
        const QByteArray path = QFile::encodeName(folder_->filePath(u"notify"_s));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        const int told = ::socket(AF_UNIX, SOCK_DGRAM, 0);
        QCOMPARE(::bind(told, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        QByteArray heard;
        const auto hear = [told, &heard] {
            QByteArray words(100, '\0');
            const auto length = ::recv(told, words.data(), 100, MSG_DONTWAIT);
            return heard += words.first(std::max<qsizetype>(length, 0));
        };
        const int descriptor = static_cast<int>(door.socketDescriptor());
        start(
            {u"-c"_s,
             u"export LISTEN_PID=$$ LISTEN_FDS=1 NOTIFY_SOCKET='%1'; exec '%2' --no-page --state '%3'"_s
                 .arg(QFile::decodeName(path), QString::fromUtf8(SMSGATEWAY_PATH), state_)},
            u"/bin/sh"_s, [descriptor] { ::dup2(descriptor, 3); });
        QVERIFY(started_.contains(QByteArray::number(door.serverPort())));
        QTRY_COMPARE(hear(), QByteArray("READY=1"));
        QTRY_COMPARE(client.answers(), u"2"_s);
        client.send(message_);
        QTRY_COMPARE(client.answers(), u"21"_s);
        QCOMPARE(::kill(static_cast<pid_t>(process_->processId()), SIGTERM), 0);
        QTRY_COMPARE(client.error(), QAbstractSocket::RemoteHostClosedError);
        QCOMPARE(exit_code(), 0);
        QCOMPARE(hear(), QByteArray("READY=1STOPPING=1"));
        ::close(told);
    }

    void outlives_a_flood_of_links() {
        serve({}, [] {
            const rlimit few{64, 64};
            ::setrlimit(RLIMIT_NOFILE, &few);
        });
        client_->send(message_);
        QTRY_COMPARE(client_->answers(), u"1"_s);
        std::list<test_client> idle;
        for (int i = 0; i < 200; ++i) {
            idle.emplace_back(client_->peerPort());
        }
        client_->send(message_);
        QTRY_COMPARE(client_->answers(), u"11"_s);
        test_client late(client_->peerPort());
        late.send(message_);
        QTRY_COMPARE(late.answers(), u"1"_s);
    }

    void checks_settings() {
        QFile file(folder_->filePath(u"settings.ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[gateway]\nengine = simulator\nkeep_days = 7\n");
        file.close();
        const QStringList options{u"check"_s, u"--state"_s, state_, u"--config"_s, file.fileName()};
        start(options);
        QCOMPARE(exit_code(), 0);
        QVERIFY(file.open(QIODevice::Append));
        file.write("bogus = 1\n");
        file.close();
        start(options);
        QCOMPARE(exit_code(), 1);
        QVERIFY(process_->readAllStandardError().contains(":4: there is no setting gateway/bogus"));
    }
};

QTEST_GUILESS_MAIN(test_gateway_program)
#include "test_gateway_program.moc"
