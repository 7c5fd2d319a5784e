// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/gateway/gammu_stage.h"

#include <QFile>

using namespace Qt::StringLiterals;
using gateway::handover_result;

/// Our engine on gammu-smsd's tables: what the daemon would write is written by hand.
class test_gateway_gammu : public QObject {
    Q_OBJECT

    /// Moves what is queued to what was sent, as the daemon does.
    void send(const QString& status) {
        stage_->run(u"INSERT INTO sentitems (ID, CreatorID, SenderID, Text, UDH, Status, TPMR, "
                    "SendingDateTime) SELECT ID, CreatorID, '', '', '', '%1', 9, datetime('now', "
                    "'localtime') FROM outbox"_s.arg(status));
        stage_->run(u"DELETE FROM outbox"_s);
    }

    /// The daemon takes the message into its hand, so long ago, for so many seconds.
    void take_in_hand(int seconds_ago, int seconds) {
        stage_->run(u"DROP TRIGGER update_outbox_time"_s);
        stage_->run(
            u"UPDATE outbox SET UpdatedInDB = datetime('now', '-%1 seconds'), SendingTimeOut "
            "= datetime('now', 'localtime', '%2 seconds')"_s.arg(seconds_ago)
                .arg(seconds - seconds_ago));
    }

    [[nodiscard]] QStringList queue() const {
        return stage_->column(u"SELECT CreatorID FROM outbox"_s);
    }

    std::unique_ptr<gammu_stage> stage_;

private slots:
    void init() {
        stage_ = std::make_unique<gammu_stage>();
        stage_->sign_in();
        stage_->start_engine();
        QTRY_VERIFY(stage_->engine->health().up);
    }

    void tells_what_is_wrong_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("told");
        QTest::newRow("fine") << u"SELECT 1"_s << u"signal 70 %"_s;
        QTest::newRow("no table") << u"DROP TABLE outbox_multipart"_s << u"no such table"_s;
        QTest::newRow("no column")
            << u"ALTER TABLE inbox DROP COLUMN Processed"_s << u"no such column"_s;
        QTest::newRow("version") << u"UPDATE gammu SET Version = 16"_s << u"of version 17"_s;
        QTest::newRow("no version") << u"DELETE FROM gammu"_s << u"of version 17"_s;
        QTest::newRow("no modem") << u"DELETE FROM phones"_s << u"has not begun"_s;
        QTest::newRow("stale") << u"UPDATE phones SET TimeOut = datetime('now', 'localtime', '-3 "
                                  "minutes')"_s
                               << u"signal 70 %"_s; // it has sent since
    }

    void tells_what_is_wrong() {
        QFETCH(QString, sql);
        QFETCH(QString, told);
        stage_->run(sql);
        stage_->start_engine();
        const bool is_fine = told.contains(u"signal");
        QTRY_VERIFY2(stage_->engine->health().text.contains(told),
                     qPrintable(stage_->engine->health().text));
        QCOMPARE(stage_->engine->health().up, is_fine);
        std::optional<QString> fault;
        stage_->engine->check([&fault](const QString& what) { fault = what; });
        QTRY_VERIFY(fault.has_value());
        QVERIFY(is_fine ? fault->isEmpty() : fault->contains(told));
    }

    void recovers() {
        const QString kept = stage_->path(u"kept"_s);
        for (const auto& [content, told] :
             {std::pair(QByteArray(), u"no such file"_s), {QByteArray(8192, 'x'), u"damaged"_s}}) {
            QVERIFY(QFile::rename(stage_->settings.database, kept));
            QFile file(stage_->settings.database);
            QVERIFY(content.isEmpty() || file.open(QIODevice::WriteOnly));
            QVERIFY(content.isEmpty() || file.write(content) > 0);
            file.close();
            QTRY_VERIFY2(stage_->engine->health().text.contains(told),
                         qPrintable(stage_->engine->health().text));
            QVERIFY(!stage_->engine->health().up);
            stage_->engine->hand_over({1, u"10086"_s, u"text"_s});
            QFile::remove(stage_->settings.database);
            QVERIFY(QFile::rename(kept, stage_->settings.database));
            QTRY_COMPARE(queue(), QStringList{u"smsgateway/1"_s});
            QVERIFY(stage_->engine->health().up);
        }
    }

    void waits_for_a_lock() {
        {
            gateway::gammu_database other(stage_->settings);
            other.together([&] {
                stage_->engine->hand_over({1, u"10086"_s, u"text"_s});
                QTRY_VERIFY(stage_->engine->health().text.contains(u"locked"));
            });
        }
        QTRY_COMPARE(queue(), QStringList{u"smsgateway/1"_s});
        QCOMPARE(stage_->sink.settles, 0);
    }

    void refuses_what_cannot_be_sent() {
        const QStringList numbers{{}, u"+"_s, u"BANK"_s, u"1391234567８"_s};
        for (qsizetype i = 0; i < numbers.size(); ++i) {
            stage_->engine->hand_over({i, numbers[i], u"text"_s});
        }
        stage_->engine->hand_over({9, u"10086"_s, QString(1, QChar(u'\0'))});
        QTRY_COMPARE(stage_->sink.settles, 5);
        for (const auto& outcome : std::as_const(stage_->sink.settled)) {
            QVERIFY(outcome.result == handover_result::refused);
        }
        QVERIFY(queue().isEmpty());
    }

    void reports() {
        stage_->engine->hand_over({7, u"10086"_s, u"text"_s});
        QTRY_COMPARE(queue().size(), 1);
        send(u"SendingOK"_s);
        QTRY_COMPARE(stage_->sink.settles, 1);
        QVERIFY(stage_->sink.settled[7].result == handover_result::accepted);
        QCOMPARE(stage_->sink.settled[7].ref, u"9"_s);
        stage_->sink.keeps = false;
        stage_->run(u"UPDATE sentitems SET Status = 'DeliveryPending'"_s);
        QTRY_VERIFY(stage_->sink.turned_away > 0);
        // Told again until it is kept, and once; also by a gateway that was started meanwhile.
        for (int starts = 0; starts < 2; ++starts) {
            stage_->sink.reports.clear();
            stage_->sink.keeps = true;
            QTRY_COMPARE(stage_->sink.reports.size(), 1);
            QCOMPARE(stage_->sink.reports.first().id, 7);
            QVERIFY(stage_->sink.reports.first().what == gateway::fate::buffered);
            stage_->start_engine();
        }
        QTRY_COMPARE(stage_->sink.reports.size(), 2);
    }

    void asks_data() {
        QTest::addColumn<QString>("sql"); // what happened while the gateway was down
        QTest::addColumn<int>("result");
        QTest::newRow("sent") << u"sent"_s << static_cast<int>(handover_result::accepted);
        QTest::newRow("refused") << u"refused"_s << static_cast<int>(handover_result::refused);
        QTest::newRow("never queued") << u"never"_s << static_cast<int>(handover_result::not_now);
        QTest::newRow("died over") << u"died"_s << static_cast<int>(handover_result::unknown);
        QTest::newRow("restarted") << u"restarted"_s << static_cast<int>(handover_result::unknown);
        QTest::newRow("waits for a retry")
            << u"retry"_s << static_cast<int>(handover_result::unknown);
        QTest::newRow("sent long ago") << u"old"_s << static_cast<int>(handover_result::accepted);
        QTest::newRow("phone away") << u"away"_s << static_cast<int>(handover_result::not_now);
    }

    void asks() {
        QFETCH(QString, sql);
        if (sql != u"never") {
            stage_->engine->hand_over({7, u"10086"_s, u"text"_s});
            QTRY_COMPARE(queue().size(), 1);
        }
        stage_->engine.reset();
        if (sql == u"sent" || sql == u"old") {
            send(u"SendingOK"_s);
        } else if (sql == u"refused") {
            send(u"SendingError"_s);
        } else if (sql == u"died") {
            take_in_hand(70, 60);
        } else if (sql == u"restarted") {
            take_in_hand(40, 60);
            stage_->run(u"UPDATE phones SET InsertIntoDB = datetime('now', 'localtime')"_s);
        } else if (sql == u"retry") {
            take_in_hand(10, 600);
        } else if (sql == u"away") {
            stage_->sign_in(u"-3 minutes"_s);
        }
        if (sql == u"old") {
            stage_->run(u"UPDATE sentitems SET SendingDateTime = '2020-01-01 00:00:00'"_s);
        }
        stage_->start_engine();
        stage_->engine->ask(7);
        QTRY_COMPARE(stage_->sink.settles, 1);
        QTEST(static_cast<int>(stage_->sink.settled[7].result), "result");
        // What the daemon might send again is kept from it, and a person may want it sent again.
        const bool is_held = sql == u"died" || sql == u"restarted";
        QCOMPARE(
            stage_->column(u"SELECT ID FROM outbox WHERE SendingTimeOut > '9999-01-01'"_s).size(),
            is_held ? 1 : 0);
        stage_->engine->hand_over({7, u"10086"_s, u"text"_s});
        QTRY_COMPARE(queue().size(), sql == u"away" ? 0 : 1);
        QTRY_VERIFY(stage_->column(u"SELECT ID FROM outbox WHERE SendingTimeOut > '9999-01-01'"_s)
                        .isEmpty());
    }

    void keeps_the_last_of_two_attempts() {
        for (const QString& status : {u"SendingError"_s, u"SendingOK"_s}) {
            stage_->engine->hand_over({7, u"10086"_s, u"text"_s});
            QTRY_COMPARE(queue().size(), 1);
            send(status);
            QTRY_VERIFY(stage_->sink.settled.contains(7));
            QVERIFY((stage_->sink.settled.take(7).result == handover_result::accepted) ==
                    (status == u"SendingOK"));
        }
        stage_->start_engine();
        stage_->engine->ask(7);
        QTRY_VERIFY(stage_->sink.settled.contains(7));
        QVERIFY(stage_->sink.settled[7].result == handover_result::accepted);
        // Once it has looked again, it has told everything.
        stage_->run(u"INSERT INTO inbox (Text, UDH, RecipientID) VALUES ('0061', '', '')"_s);
        QTRY_COMPARE(stage_->sink.received.size(), 1);
        for (const gateway::report& told : std::as_const(stage_->sink.reports)) {
            QVERIFY(told.what == gateway::fate::accepted);
        }
    }

    void knows_what_vanished() {
        stage_->engine->hand_over({7, u"10086"_s, u"text"_s});
        QTRY_COMPARE(queue().size(), 1);
        stage_->run(u"DELETE FROM outbox"_s);
        QTRY_COMPARE(stage_->sink.settles, 1);
        stage_->start_engine();
        stage_->engine->ask(7);
        QTRY_COMPARE(stage_->sink.settles, 2);
        QVERIFY(stage_->sink.settled[7].result == handover_result::unknown);
    }

    void leaves_what_is_not_ours() {
        stage_->settings.phone_id = u"b"_s;
        stage_->run(u"UPDATE phones SET ID = 'b'"_s);
        for (const QString& creator : {u"x"_s, u"smsgateway/1"_s, u"smsgateway/b/x"_s}) {
            stage_->run(
                u"INSERT INTO outbox (CreatorID, SendingTimeOut) VALUES ('%1', '2020-01-01')"_s.arg(
                    creator));
        }
        stage_->run(
            u"INSERT INTO inbox (Text, UDH, RecipientID, Status) VALUES ('0061', '', 'a', 0), "
            "('0062', '', 'b', 2), ('0063', '', 'b', -1), ('0064', '', 'b', 0)"_s);
        stage_->sink.keeps = false;
        stage_->start_engine();
        QTRY_VERIFY(stage_->sink.turned_away > 0);
        QCOMPARE(stage_->column(u"SELECT ID FROM inbox WHERE Processed = 'true'"_s).size(), 0);
        stage_->sink.keeps = true;
        QTRY_COMPARE(stage_->column(u"SELECT Text FROM inbox WHERE Processed = 'true'"_s),
                     (QStringList{u"0063"_s, u"0064"_s}));
        QCOMPARE(stage_->sink.received.size(), 2);
        QCOMPARE(
            stage_->column(u"SELECT ID FROM outbox WHERE SendingTimeOut = '2020-01-01'"_s).size(),
            3);
    }
};

QTEST_GUILESS_MAIN(test_gateway_gammu)
#include "test_gateway_gammu.moc"
