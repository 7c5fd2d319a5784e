// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/strconn.h"
#include "tests/faults/workplace.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

/// The client beside neighbours that fail, in real processes. SMSCRM_FAULTS_SCALE makes the runs
/// longer; SMSCRM_FAULTS_SEED repeats the chances of one.
class test_faults : public QObject {
    Q_OBJECT

    const QString saved_ = u"保存成功|成功创建一个短语信息，继续创建吗？ "_s;
    const QString refused_ = u"不能保存 |输入错误，不能保存短语信息，请检查！"_s;
    const int scale_ = qMax(1, qEnvironmentVariableIntValue("SMSCRM_FAULTS_SCALE"));
    QRandomGenerator chance_;

    static QByteArray old_office() {
        QFile file(QString::fromUtf8(OFFICE));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void initTestCase() {
        const QByteArray given = qgetenv("SMSCRM_FAULTS_SEED");
        const uint seed = given.isEmpty() ? QRandomGenerator::global()->generate() : given.toUInt();
        qInfo("SMSCRM_FAULTS_SEED=%u", seed);
        chance_.seed(seed);
    }

    void killed_while_sending_data() {
        QTest::addColumn<int>("clients");
        QTest::newRow("one client") << 1;
        QTest::newRow("two clients") << 2;
    }

    void killed_while_sending() {
        QFETCH(int, clients);
        workplace w(1000 * scale_);
        for (int i = 0; i < clients; ++i) { // whoever sends, all can work
            process& client = w.start_client({u"好"_s});
            QVERIFY(client.says(u"typed"_s));
            client.write("\n");
            QVERIFY(client.says(saved_));
        }
        while (w.kills < 10 * scale_) {
            QVERIFY(w.progress(chance_.bounded(4))); // now and then already while it starts
            w.clients.front().waitForFinished(1 + chance_.bounded(100));
            w.kills += w.clients.front().end();
            w.clients.pop_front();
            if (clients > 1) {
                QVERIFY(w.progress()); // goes on in the place of the other
            }
            QVERIFY(w.is_sound());
            w.start_client();
        }
        QVERIFY(w.finish());
        QCOMPARE(w.repeated(), 0);
        QCOMPARE(w.starts, w.kills + clients);
    }

    // Not even by the client that starts while the last one is still ending.
    void closed_while_sending() {
        workplace w(100 * scale_, u"--delay 20"_s);
        w.start_client();
        for (int i = 0; i < 10 * scale_; ++i) {
            QVERIFY(w.progress(1 + chance_.bounded(5)));
            process& closed = w.clients.front();
            closed.write("\n");
            w.start_client();
            QVERIFY(closed.waitForFinished(process::watchdog_ms));
            QCOMPARE(closed.exitCode(), 0);
            w.clients.pop_front();
        }
        QVERIFY(w.finish());
        QCOMPARE(w.repeated(), 0);
    }

    void killed_while_writing_data() {
        QTest::addColumn<QString>("begins");
        QTest::addColumn<int>("takes_ms");     // about
        QTest::addColumn<QString>("constant"); // the same after every job that is done or left out
        QTest::newRow("group")
            << u"logged in"_s << 120
            << u"select count(*) - 5000 * (select count(*) from gsendsms) from sendsms"_s;
        QTest::newRow("start") << u"begin"_s << 30 << u"select count(*) from viewitems"_s;
        QTest::newRow("upgrade") // the old one or the new, once the copy is there
            << u"begin"_s << 8 << u"select sum(length(sql)) from sqlite_master"_s;
    }

    void killed_while_writing() {
        QFETCH(QString, begins);
        QFETCH(int, takes_ms);
        QFETCH(QString, constant);
        const auto tag = QString::fromLatin1(QTest::currentDataTag());
        const QString job = tag == u"group" ? tag : u"start"_s;
        using enum physical_database::open_mode;
        const auto old_one = open_database({}, memory);
        old_one->execute_script(old_office().constData());
        workplace w(0);
        w.execute(u"insert into customer (mobile) with recursive n(i) as "
                  "(values (1) union all select i + 1 from n where i < 5000) select i from n"_s);
        const QVariant expected = w.value(constant);
        for (int i = 0; i < 10 * scale_; ++i) {
            const QTemporaryDir fresh;
            const QString folder = job == u"start" ? fresh.path() : w.folder();
            connection_pool::clear();
            if (tag == u"upgrade") {
                open_database(folder + u"/sms.old.mdb"_s, create)
                    ->execute_script(old_office().constData());
            }
            process struck(u"/fault_client"_s, {folder, job});
            QVERIFY(struck.says(begins));
            const QString kept = folder + u"/sms.old.mdb-before-step-2"_s;
            while (tag == u"upgrade" && !QFile::exists(kept) && !struck.waitForFinished(1)) {
            }
            w.kills += struck.end(1 + chance_.bounded(takes_ms));
            strconn = make_strconn(folder);
            if (tag == u"upgrade") {
                QVERIFY(w.is_sound());
                const int version =
                    w.value(u"select user_version from pragma_user_version"_s).toInt();
                QCOMPARE(w.value(constant), version > 1 ? expected : old_one->number(constant));
            }
            QVERIFY(process(u"/fault_client"_s, {folder, job}).says(u"done"_s));
            QVERIFY(w.is_sound());
            QCOMPARE(w.value(constant), expected);
            w.execute(u"delete from sendsms"_s);
            w.execute(u"delete from gsendsms"_s);
        }
    }

    void a_save_in_trouble_data() {
        QTest::addColumn<int>("lasts_ms"); // or until the client says something
        QTest::addColumn<int>("least_refusals");
        QTest::addColumn<int>("most_refusals");
        QTest::newRow("locked for 1 s") << 1'000 << 0 << 0;
        QTest::newRow("locked for 2 s") << 2'000 << 0 << 1;
        QTest::newRow("locked for 10 s") << 10'000 << 1 << 1;
        QTest::newRow("disk full") << 10'000 << 1 << 1'000;
    }

    void a_save_in_trouble() {
        QFETCH(int, lasts_ms);
        workplace w(0);
        process& client = w.start_client({u"好"_s});
        QVERIFY(client.says(u"typed"_s));
        w.trouble(QTest::currentDataTag(), true);
        client.write("\n");
        QString told = client.line(lasts_ms);
        w.trouble(QTest::currentDataTag(), false);
        int refusals = 0;
        for (told = told.isEmpty() ? client.line() : told; told == refused_; told = client.line()) {
            ++refusals;
        }
        QCOMPARE(told, saved_);
        QFETCH(int, least_refusals);
        QFETCH(int, most_refusals);
        QVERIFY(refusals >= least_refusals && refusals <= most_refusals);
        QCOMPARE(w.rows(u"select text from smsmodels"_s), QStringList(u"好"_s));
        QVERIFY(w.is_sound());
    }

    void sends_on_data() {
        QTest::addColumn<QString>("gateway_options");
        QTest::addColumn<QString>("timeout_ms");
        QTest::addColumn<int>("troubles");
        QTest::addColumn<int>("messages_meanwhile");
        QTest::addColumn<int>("still_ms"); // long enough for a client to send three of them
        QTest::newRow("gateway killed") << u"--delay 2"_s << u"600000"_s << 5 << 0 << 0;
        QTest::newRow("disk full") << u"--delay 2"_s << u"600000"_s << 5 << 20 << 0;
        QTest::newRow("locked") << u"--delay 2"_s << u"600000"_s << 1 << 2 << 0;
        QTest::newRow("gateway stands still") << u"--delay 2"_s << u"2000"_s << 1 << 0 << 6'500;
    }

    void sends_on() {
        QFETCH(QString, gateway_options);
        QFETCH(QString, timeout_ms);
        QFETCH(int, troubles);
        QFETCH(int, messages_meanwhile);
        QFETCH(int, still_ms);
        workplace w(100 * scale_, gateway_options, timeout_ms);
        w.start_client();
        for (int i = 0; i < troubles * scale_; ++i) {
            QVERIFY(w.progress(1 + chance_.bounded(20)));
            w.trouble(QTest::currentDataTag(), true);
            QVERIFY(w.progress(messages_meanwhile));
            QTest::qWait(still_ms);
            w.trouble(QTest::currentDataTag(), false);
        }
        QVERIFY(w.finish());
        QCOMPARE(w.repeated(), 0);
        // Each time the gateway was gone, the link was perhaps lost for good.
        QVERIFY(w.starts <= w.kills + 1);
    }
};

QTEST_GUILESS_MAIN(test_faults)
#include "test_faults.moc"
