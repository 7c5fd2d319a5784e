// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "test_client.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class test_gateway_program : public QObject {
    Q_OBJECT

private:
    // Starts the program; started_ is then the line it greets with, or empty if it ended.
    void start(const QStringList& options) {
        process_ = std::make_unique<QProcess>();
        process_->start(QString::fromUtf8(SMSGATEWAY_PATH), options);
        started_ = process_->waitForReadyRead() ? process_->readLine() : QByteArray();
    }

    // Starts the program on a free port and connects to it.
    void serve(const QStringList& options) {
        start(QStringList{u"--listen"_s, u"127.0.0.1:0"_s, u"--journal"_s, journal_} + options);
        QVERIFY(started_.startsWith("listening on 127.0.0.1:"));
        client_ = std::make_unique<test_client>(started_.trimmed().split(':').last().toUShort());
    }

    QStringList journal_values(const QString& key) {
        QFile file(journal_);
        QStringList values;
        if (file.open(QIODevice::ReadOnly)) {
            while (!file.atEnd()) {
                values.append(QJsonDocument::fromJson(file.readLine())[key].toString());
            }
        }
        return values;
    }

    QTemporaryDir folder_;
    const QString journal_ = folder_.filePath(u"journal"_s);
    const QString message_ = u"1113912345678Hello"_s;
    std::unique_ptr<QProcess> process_;
    std::unique_ptr<test_client> client_;
    QByteArray started_;

private slots:
    void cleanup() {
        process_->kill();
        process_->waitForFinished();
        QFile::remove(journal_);
    }

    void refuses_options_data() {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("complaint");
        QTest::newRow("unknown option") << u"--colour"_s << u"colour"_s;
        QTest::newRow("unknown backend") << u"--backend carrier"_s << u"carrier"_s;
        QTest::newRow("rate over 1") << u"--fail-rate 1.01"_s << u"--fail-rate 1.01"_s;
        QTest::newRow("negative rate") << u"--drop-rate=-0.1"_s << u"--drop-rate -0.1"_s;
        QTest::newRow("rate not a number") << u"--fail-rate nan"_s << u"--fail-rate nan"_s;
        QTest::newRow("negative delay") << u"--delay=-1"_s << u"--delay -1"_s;
        QTest::newRow("port too large") << u"--listen 127.0.0.1:65536"_s << u"65536"_s;
        QTest::newRow("bad address") << u"--listen 300.0.0.1:0"_s << u"300.0.0.1"_s;
        QTest::newRow("journal in no folder")
            << u"--journal /nowhere/journal"_s << u"/nowhere/journal"_s;
        QTest::newRow("no FIFO") << u"--control /nowhere/fifo"_s << u"/nowhere/fifo"_s;
        QTest::newRow("not a FIFO") << u"--control /dev/null"_s << u"not a FIFO"_s;
        QTest::newRow("address in use") << u"--listen 127.0.0.1:TAKEN"_s << u"in use"_s;
    }

    void refuses_options() {
        QFETCH(QString, arguments);
        QFETCH(QString, complaint);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        start(arguments.replace(u"TAKEN"_s, QString::number(other.serverPort())).split(u' '));
        QCOMPARE(started_, QByteArray());
        QTRY_COMPARE(process_->state(), QProcess::NotRunning);
        QCOMPARE(process_->exitStatus(), QProcess::NormalExit);
        QCOMPARE(process_->exitCode(), 1);
        const QString told = QString::fromUtf8(process_->readAllStandardError());
        QVERIFY2(told.contains(complaint), qPrintable(told));
    }

    void records_verdicts_data() {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("sent") << QStringList{} << u"1"_s;
        QTest::newRow("sent late") << QStringList{u"--delay"_s, u"5"_s} << u"1"_s;
        QTest::newRow("failed") << QStringList{u"--fail-rate"_s, u"1"_s} << u"2"_s;
        QTest::newRow("dropped") << QStringList{u"--drop-rate"_s, u"1"_s} << u""_s;
    }

    void records_verdicts() {
        QFETCH(QStringList, options);
        QFETCH(QString, verdict);
        serve(options);
        client_->send(message_);
        QTRY_COMPARE(journal_values(u"verdict"_s), QStringList{verdict});
        QTRY_COMPARE(client_->answers(), verdict);
        client_->send(u"no \"number\"\n\u0001😀"_s);
        QTRY_COMPARE(client_->answers(), verdict + u"2"_s);
        QCOMPARE(journal_values(u"verdict"_s), QStringList({verdict, u"2"_s}));
        QCOMPARE(journal_values(u"mobile"_s), QStringList({u"13912345678"_s, {}}));
        QCOMPARE(journal_values(u"direction"_s), QStringList({u"out"_s, u"out"_s}));
        QCOMPARE(journal_values(u"text"_s), QStringList({u"Hello"_s, u"no \"number\"\n\u0001😀"_s}));
        const QRegularExpression iso(uR"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}$)"_s);
        QVERIFY(iso.match(journal_values(u"time"_s).first()).hasMatch());
    }

    void brings_messages() {
        const QString path = folder_.filePath(u"fifo"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        serve({u"--control"_s, path});
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
            fifo.write("recv 8610086 again\n");
            fifo.close();
            QTRY_COMPARE(client_->answers().count(u"again"), i);
        }
        QCOMPARE(journal_values(u"direction"_s), QStringList(3, u"in"_s));
        QCOMPARE(journal_values(u"mobile"_s).first(), u"8613912345678"_s);
    }

    void echoes() {
        serve({u"--echo"_s, u"--echo-delay"_s, u"0"_s});
        client_->send(message_);
        const QRegularExpression both(u"^1013861391234567812\\d{12}回复：Hello$"_s);
        QTRY_VERIFY(both.match(client_->answers()).hasMatch());
    }

    void ends_on_signal() {
        for (const int number : {SIGTERM, SIGINT}) {
            serve({u"--delay"_s, u"100000"_s});
            client_->send(message_);
            QVERIFY(client_->waitForBytesWritten());
            QCOMPARE(::kill(static_cast<pid_t>(process_->processId()), number), 0);
            QTRY_COMPARE(process_->state(), QProcess::NotRunning);
            QCOMPARE(process_->exitStatus(), QProcess::NormalExit);
            QCOMPARE(process_->exitCode(), 0);
        }
    }
};

QTEST_GUILESS_MAIN(test_gateway_program)
#include "test_gateway_program.moc"
