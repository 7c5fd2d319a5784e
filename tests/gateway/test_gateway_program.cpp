// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "test_client.h"

#include <QFile>
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

    // The status it ends with, -1 after a crash.
    int exit_code() {
        [this] { QTRY_COMPARE(process_->state(), QProcess::NotRunning); }();
        return process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : -1;
    }

    // What the journal holds, less the times.
    QString journal() {
        const QRegularExpression time(uR"(,"time":"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}")"_s);
        QFile file(journal_);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).remove(time)
                                              : QString();
    }

    QTemporaryDir folder_;
    const QString journal_ = folder_.filePath(u"journal"_s);
    const QString message_ = u"1113912345678Hello"_s;
    std::unique_ptr<QProcess> process_;
    std::unique_ptr<test_client> client_;
    QByteArray started_;
    int ended_ = 0;

private slots:
    void cleanup() {
        if (process_->state() == QProcess::Running) { // ended by either signal in turn
            const int number = ++ended_ % 2 == 0 ? SIGTERM : SIGINT;
            QCOMPARE(::kill(static_cast<pid_t>(process_->processId()), number), 0);
            QCOMPARE(exit_code(), 0);
        }
        QFile::remove(journal_);
    }

    void refuses_options_data() {
        QTest::addColumn<QString>("arguments");
        for (const char* arguments :
             {"--backend", "--backend carrier", "--fail-rate 1.01", "--drop-rate -0.1",
              "--fail-rate nan", "--delay -1", "--listen 127.0.0.1:65536", "--listen 300.0.0.1:0",
              "--listen 127.0.0.1:TAKEN", "--journal /nowhere/journal", "--control /nowhere/fifo",
              "--control /dev/null"}) {
            QTest::newRow(arguments) << QString::fromUtf8(arguments);
        }
    }

    void refuses_options() {
        QFETCH(QString, arguments);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        arguments.replace(u"TAKEN"_s, QString::number(other.serverPort()));
        start(arguments.split(u' '));
        QCOMPARE(exit_code(), 1);
        QCOMPARE(started_, QByteArray());
        const QString told = QString::fromUtf8(process_->readAllStandardError());
        QVERIFY2(told.contains(arguments.section(u' ', -1)), qPrintable(told));
    }

    void records_verdicts_data() {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("sent") << u"--delay 5"_s << u"1"_s;
        QTest::newRow("failed") << u"--fail-rate 1"_s << u"2"_s;
        QTest::newRow("dropped") << u"--drop-rate 1"_s << u""_s;
    }

    void records_verdicts() {
        QFETCH(QString, options);
        QFETCH(QString, verdict);
        serve(options.split(u' '));
        const QString sent =
            u"{\"direction\":\"out\",\"mobile\":\"%1\",\"text\":\"%2\",\"verdict\":\"%3\"}\n"_s;
        const QString first = sent.arg(u"13912345678"_s, u"Hello"_s, verdict);
        client_->send(message_);
        QTRY_COMPARE(journal(), first);
        QTRY_COMPARE(client_->answers(), verdict);
        const QString longer(600, u'长'); // only a pause tells that no more of it comes
        client_->send(u"no \"number\"\n😀"_s + longer);
        QTRY_COMPARE(client_->answers(), verdict + u"2"_s);
        QCOMPARE(journal(), first + sent.arg(QString(), uR"(no \"number\"\n😀)"_s + longer, u"2"_s));
    }

    void brings_messages() {
        const QString path = folder_.filePath(u"fifo"_s);
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
            fifo.write("recv 8610086 again\n");
            fifo.close();
            QTRY_COMPARE(client_->answers().count(u"again"), i);
        }
        client_->send(message_);
        const QRegularExpression echo(u"1013861391234567812\\d{12}回复：Hello$"_s);
        QTRY_VERIFY(echo.match(client_->answers()).hasMatch());
        QCOMPARE(journal().count(u"\"direction\":\"in\",\"mobile\":\"86"), 4);
    }
};

QTEST_GUILESS_MAIN(test_gateway_program)
#include "test_gateway_program.moc"
