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
        for (int i = 1; i <= 7; ++i) {
            QVERIFY(bring(QString::number(i), u"it's "_s + QString::number(i)));
        }
        QVERIFY(bring(u"1"_s, u"again"_s)); // the network was not sure
        const QString unconfirmed = u"SELECT text FROM received WHERE confirmed_at IS NULL"_s;
        QString brought;
        for (int i = 1; i <= 4; ++i) {
            brought += frame(u"it’s "_s + QString::number(i));
            QTRY_COMPARE(client(u"a"_s).answers(), brought);
            clock_.advance(1s);
        }
        QCOMPARE(rows(unconfirmed).count(u"it's"), 7); // the link lives for 4 s only
        act(u"a-"_s);
        QTRY_VERIFY(client(u"b"_s).answers().startsWith(frame(u"it’s 1"_s)));
        QTRY_COMPARE((clock_.advance(1s), rows(unconfirmed)), QString());
        QVERIFY(client(u"b"_s).answers().endsWith(frame(u"it’s 7"_s)));
        act(u"b-"_s);
        act(u"c>x"_s);
        clock_.advance(10s);
        QCOMPARE(client(u"c"_s).answers(), u"1"_s); // nothing is left for it
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
