// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "relay_stage.h"

/// What comes back to the clients, and what is kept of all that.
class test_gateway_received : public relay_stage {
    Q_OBJECT

private slots:
    void init() { begin(); }

    void tells_failures_data() {
        QTest::addColumn<QString>("play");
        QTest::addColumn<QString>("notice");
        QTest::newRow("refused") << u"a>x refuse"_s << u"网络拒绝发送"_s;
        QTest::newRow("undelivered, told twice")
            << u"a>x accept undelivered undelivered"_s << u"网络未能送到"_s;
    }

    void tells_failures() {
        QFETCH(QString, play);
        QFETCH(QString, notice);
        for (const QString& word : play.split(u' ')) {
            act(word);
        }
        clock_.advance(2s);
        const QRegularExpression told(u"^10130013912345678"_s +
                                      u"12\\d{12}【未送达】%1：x$"_s.arg(notice));
        QTRY_VERIFY2(told.match(client(u"a"_s).answers()).hasMatch(),
                     qPrintable(client(u"a"_s).answers()));
    }

    void brings_received_messages() {
        const auto bring = [this](const QString& key, const QString& text) {
            return network_->sink->take(gateway::incoming_message{
                key, u"+8613912345678"_s, QDateTime(QDate(2024, 2, 3), QTime(4, 5, 6)), text});
        };
        const auto frame = [](const QString& text) {
            return u"013861391234567812240203040506"_s + text;
        };
        for (const QString& key : {u"1"_s, u"2"_s, u"3"_s, u"1"_s}) { // of one it was not sure
            QVERIFY(bring(key, u"it's "_s + key));
        }
        QTRY_COMPARE(client(u"a"_s).answers(), frame(u"it’s 1"_s));
        clock_.advance(4s);
        act(u"a-"_s); // before it has surely read it
        QTRY_COMPARE(client(u"b"_s).answers(), frame(u"it’s 1"_s));
        clock_.advance(4s); // alone: the next waits until this one is surely read
        client(u"b"_s).send(u"1113912345678x"_s);
        QTRY_COMPARE(client(u"b"_s).answers(), frame(u"it’s 1"_s) + u'1');
        client(u"b"_s).send(u"1113912345678x"_s); // it has, for it read the answer behind it
        QTRY_COMPARE(client(u"b"_s).answers(), frame(u"it’s 1"_s) + u'1' + frame(u"it’s 2"_s));
        // The system tells late that something was read.
        QTRY_VERIFY((clock_.advance(5s), client(u"b"_s).answers().endsWith(frame(u"it’s 3"_s))));
        const QString open = u"SELECT text FROM received WHERE confirmed_at IS NULL"_s;
        QTRY_COMPARE((clock_.advance(5s), rows(open)), QString());
        act(u"b-"_s);
        act(u"c>x"_s);
        clock_.advance(10s);
        QCOMPARE(client(u"c"_s).answers(), u"1"_s); // nothing is left for it
    }

    void keeps_together_or_not_at_all() {
        for (const bool all_kept : {false, true}) {
            const bool kept = network_->sink->take_together([this, all_kept] {
                return network_->sink->take(gateway::incoming_message{
                           u"1"_s, u"10086"_s, QDateTime::currentDateTime(), u"text"_s}) &&
                       client(u"a"_s).answers().isEmpty() && all_kept; // goes to nobody yet
            });
            QCOMPARE(kept, all_kept);
            QCOMPARE(rows(u"SELECT text FROM received"_s), all_kept ? u"text"_s : QString());
        }
        QTRY_VERIFY(client(u"a"_s).answers().endsWith(u"text"));
    }

    void joins_parts() {
        const auto part = [this](const QString& key, int number, int count, const QString& text) {
            return network_->sink->take(gateway::incoming_part{
                {key, u"10086"_s, QDateTime::currentDateTime(), text}, 7, number, count});
        };
        const QString texts = u"SELECT text FROM received ORDER BY id"_s;
        QVERIFY(part(u"a"_s, 2, 2, u"world"_s) && part(u"a"_s, 2, 2, u"world"_s));
        QCOMPARE(rows(texts), QString());
        QVERIFY(part(u"b"_s, 1, 2, u"hello"_s) && part(u"b"_s, 1, 2, u"hello"_s));
        QCOMPARE(rows(texts), u"helloworld"_s);
        QVERIFY(part(u"c"_s, 1, 3, u"lonely"_s));
        clock_.advance(48h);
        QCOMPARE(rows(texts), u"helloworld lonely……"_s);
    }

    void cleans_what_is_old() {
        settings_.gateway.keep_days = 2;
        start();
        for (const char* word : {"a>old", "accept", "delivered", "a>waiting", "+5"}) {
            act(QString::fromLatin1(word));
        }
        clock_.advance(49h);
        QCOMPARE(rows(u"SELECT text FROM message"_s), u"waiting"_s);
        QCOMPARE(rows(u"SELECT message FROM event"_s), QString());
    }
};

QTEST_GUILESS_MAIN(test_gateway_received)
#include "test_gateway_received.moc"
