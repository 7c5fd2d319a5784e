// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/data_error.h"
#include "relay_stage.h"

#include <sys/socket.h>

/// What becomes of the clients' messages, and what the relay guards itself against.
class test_gateway_relay : public relay_stage {
    Q_OBJECT

private slots:
    void init() { begin(); }

    void plays_data() {
        QTest::addColumn<QString>("play");
        QTest::addColumn<QString>("messages"); // text:answer:absorbed:state:attempts
        // One message each, but for what the name tells.
        QTest::newRow("answered and read") << u"a>x +5"_s << u"x:confirmed:0:handing:1"_s;
        QTest::newRow("not surely read yet") << u"a>x +4"_s << u"x:owed:0:handing:1"_s;
        QTest::newRow("read, says the next frame")
            << u"a>x a>y"_s << u"x:confirmed:0:queued:0 y:owed:0:queued:0"_s;
        QTest::newRow("meant twice")
            << u"a>x a>x"_s << u"x:confirmed:0:queued:0 x:owed:0:queued:0"_s;
        QTest::newRow("meant twice, later")
            << u"a>x +5 a- a>x"_s << u"x:confirmed:0:handing:1 x:owed:0:queued:0"_s;
        QTest::newRow("lost answer, repeated") << u"a>x a- b>x"_s << u"x:owed:1:queued:0"_s;
        QTest::newRow("absorbed once")
            << u"a>x a- b>x b>x"_s << u"x:confirmed:1:queued:0 x:owed:0:queued:0"_s;
        QTest::newRow("two lost, both repeated")
            << u"a>x +5 a>x a- b>x b>x"_s
            << u"x:confirmed:0:handing:1 x:confirmed:1:queued:0 x:owed:0:queued:0"_s;
        QTest::newRow("repeated after a restart") << u"a>x restart b>x"_s << u"x:owed:1:queued:0"_s;
        QTest::newRow("nothing to repeat: quiet")
            << u"a>x a- b>y +200 b>x"_s
            << u"x:confirmed:0:handing:1 y:confirmed:0:handing:1 x:owed:0:queued:0"_s;
        QTest::newRow("still to repeat: busy")
            << u"a>x a- b>y +100 b>z +100 b>x"_s
            << u"x:owed:1:handing:1 y:confirmed:0:handing:1 z:confirmed:0:handing:1"_s;
        QTest::newRow("still to repeat: away") << u"a>x a- +80000 b>x"_s << u"x:owed:1:handing:1"_s;
        QTest::newRow("a day is too long")
            << u"a>x a- +90000 b>x"_s << u"x:open:0:handing:1 x:owed:0:queued:0"_s;
        QTest::newRow("delivered")
            << u"a>x accept delivered +5"_s << u"x:confirmed:0:delivered:1"_s;
        QTest::newRow("report before the accept")
            << u"a>x +1 delivered accept +5"_s << u"x:confirmed:0:delivered:1"_s;
        QTest::newRow("not now, then again")
            << u"a>x notnow +1 accept +5"_s << u"x:confirmed:0:accepted:2"_s;
        QTest::newRow("not now, twice: waits longer")
            << u"a>x notnow +1 notnow +1"_s << u"x:owed:0:queued:2"_s;
        QTest::newRow("one waits, others go on")
            << u"a>x notnow a>y accept"_s << u"x:confirmed:0:queued:1 y:owed:0:accepted:1"_s;
        QTest::newRow("killed while handing, asked: it has it")
            << u"a>x +5 restart accept"_s << u"x:confirmed:0:accepted:1"_s;
        QTest::newRow("killed while handing, asked: it never came")
            << u"a>x +5 restart notnow +1"_s << u"x:confirmed:0:handing:2"_s;
        QTest::newRow("asked again, never sent blindly")
            << u"a>x +5 restart unknown +1 unknown +2 unknown"_s << u"x:confirmed:0:unknown:1"_s;
        QTest::newRow("a report ends the doubt")
            << u"a>x +5 restart unknown delivered"_s << u"x:confirmed:0:delivered:1"_s;
        QTest::newRow("network down") << u"down a>x +600"_s << u"x:confirmed:0:queued:0"_s;
        QTest::newRow("network up again")
            << u"down a>x +600 up accept"_s << u"x:confirmed:0:accepted:1"_s;
    }

    void plays() {
        QFETCH(QString, play);
        QFETCH(QString, messages);
        for (const QString& word : play.split(u' ')) {
            act(word);
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(word));
        }
        QCOMPARE(rows(u"SELECT text || ':' || answer || ':' || absorbed || ':' || state || ':' || "
                      "attempts FROM message ORDER BY id"_s),
                 messages);
        QCOMPARE(rows(u"PRAGMA integrity_check"_s), u"ok"_s);
    }

    void absorbs_a_repeat_that_overtakes_the_end_of_its_link_data() {
        QTest::addColumn<QString>("last"); // sent by the client that dies, and not answered yet
        QTest::newRow("answered") << QString();
        QTest::newRow("not read yet") << u"y"_s;
    }

    void absorbs_a_repeat_that_overtakes_the_end_of_its_link() {
        QFETCH(QString, last);
        client(u"b"_s); // came first, so what it sends is seen first
        act(u"a>x"_s);
        test_client& dying = client(u"a"_s);
        if (!last.isEmpty()) {
            dying.send(u"1113912345678"_s + last);
            QVERIFY(dying.waitForBytesWritten());
        }
        ::shutdown(static_cast<int>(dying.socketDescriptor()), SHUT_WR);
        client(u"b"_s).send(u"1113912345678"_s + (last.isEmpty() ? u"x"_s : last));
        QVERIFY(client(u"b"_s).waitForBytesWritten());
        QTRY_COMPARE(client(u"b"_s).answers(), u"1"_s);
        QCOMPARE(rows(u"SELECT text FROM message ORDER BY id"_s),
                 last.isEmpty() ? u"x"_s : u"x "_s + last);
    }

    void holds_what_stays_unknown() {
        act(u"a>x"_s);
        act(u"+5"_s);
        act(u"restart"_s);
        for (int asked = 0; rows(u"SELECT next_at FROM message"_s) != QString(); ++asked) {
            QVERIFY(asked < 30);
            act(u"unknown"_s);
            act(u"+60"_s);
        }
        QCOMPARE(rows(u"SELECT state FROM message"_s), u"unknown"_s);
        act(u"+86400"_s);
        QVERIFY(network_->handed.isEmpty() && network_->asked.isEmpty());
    }

    void keeps_the_window() {
        network_->room = 2;
        for (const char* word : {"a>x", "a>y", "a>z"}) {
            act(QString::fromLatin1(word));
        }
        clock_.advance(1s);
        QCOMPARE(network_->handed.size(), 2);
        QCOMPARE(network_->handed.first().number, u"+8613912345678"_s);
        act(u"accept"_s);
        QCOMPARE(network_->handed.size(), 2); // the next
        QCOMPARE(network_->handed.last().text, u"z"_s);
    }

    void refuses_data() {
        QTest::addColumn<QString>("frame");
        QTest::newRow("no number") << u"Hello"_s;
        QTest::newRow("number too short") << u"212hi"_s;
        QTest::newRow("no text") << u"1113912345678"_s;
        QTest::newRow("too long") << u"1113912345678"_s + QString(4'096, u'x');
    }

    void refuses() {
        QFETCH(QString, frame);
        client(u"a"_s).send(frame);
        QTRY_VERIFY((clock_.advance(500ms), client(u"a"_s).answers() == u"2"_s));
        QCOMPARE(rows(u"SELECT id FROM message"_s), QString());
    }

    void keeps_nothing_it_cannot_write() {
        act(u"a>x"_s);
        const auto other = open_database(gateway::store::path_in(folder_->path()));
        store_->database().execute_script("PRAGMA busy_timeout=0");
        other->begin(physical_database::purpose::writing);
        act(u"a>y"_s);
        QCOMPARE(client(u"a"_s).answers(), u"12"_s);
        other->rollback();
        act(u"a>y"_s);
        QCOMPARE(client(u"a"_s).answers(), u"121"_s);
    }

    void distrusts_what_came_meanwhile_data() {
        QTest::addColumn<QStringList>("play");
        QTest::newRow("stood still") << QStringList{u"a>x"_s, u"still"_s};
        QTest::newRow("slept, after a quiet hour") << QStringList{u"a>x"_s, u"+3600"_s, u"sleep"_s};
    }

    void distrusts_what_came_meanwhile() {
        QFETCH(QStringList, play);
        for (const QString& word : play) {
            act(word);
        }
        client(u"a"_s).send(u"1113912345678one1113912345679two"_s); // as they lie in one piece
        QTRY_COMPARE(client(u"a"_s).answers(), u"12"_s);
        act(u"a>one"_s);
        QCOMPARE(rows(u"SELECT text FROM message"_s), u"x one"_s);
    }

    void bounds_links() {
        settings_.gateway.links_per_address = 3;
        start();
        act(u"a>x"_s);
        for (const QString& silent : {u"b"_s, u"c"_s, u"d"_s, u"e"_s}) {
            client(silent);
        }
        QTRY_COMPARE(client(u"b"_s).state(), QAbstractSocket::UnconnectedState);
        QTRY_COMPARE(client(u"c"_s).state(), QAbstractSocket::UnconnectedState);
        act(u"a>y"_s);
        act(u"e>z"_s);
        client(u"a"_s).write(QByteArray(10'000'000, 'x')); // a flood
        QTRY_COMPARE(client(u"a"_s).state(), QAbstractSocket::UnconnectedState);
        act(u"e>z"_s);
    }

    void ends_in_order() {
        bool ended = false;
        act(u"a>x"_s);
        client(u"a"_s).send(u"1113912345678y"_s); // under way when the end comes
        relay_->end([&ended] { ended = true; });
        QTRY_COMPARE(client(u"a"_s).answers(), u"11"_s);
        clock_.advance(50ms);
        QTRY_COMPARE(client(u"a"_s).error(), QAbstractSocket::RemoteHostClosedError);
        QTRY_VERIFY((clock_.advance(1s), ended));
    }

    // What a person decides while the dispatcher is about to act comes first.
    void begins_nothing_that_was_dropped() {
        act(u"a>x"_s);
        const gateway::message_id id = rows(u"SELECT id FROM message"_s).toLongLong();
        QVERIFY(id > 1'700'000'000); // an id of an earlier store would be taken for this one's
        store_->database().execute(u"UPDATE message SET state = 'dropped'"_s);
        gateway::dispatch_rows rows(*store_);
        QVERIFY(!rows.begin(id, 1) && !rows.put_off(id, 1));
    }

    void guards_its_store() {
        const QString path = gateway::store::path_in(folder_->path());
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), 0);
        using user = gateway::store::user;
        QVERIFY_THROWS_EXCEPTION(DataError, gateway::store(folder_->path(), user::daemon));
        const gateway::store visitor(folder_->path(), user::reader);
        store_->database().execute(u"PRAGMA user_version = 2"_s);
        QVERIFY_THROWS_EXCEPTION(DataError, gateway::store(folder_->path(), user::reader));
    }

    // 100,000 rows must not be slower than 1,000: every step of every message uses an index.
    void searches_by_index_data() {
        QTest::addColumn<QString>("where");
        QTest::newRow("repeat")
            << u"message WHERE answer = 'open' AND client = 'a' AND digest = 'b' "
               "AND taken_at > 1 ORDER BY id LIMIT 1"_s;
        QTest::newRow("due")
            << u"message WHERE state = 'queued' AND next_at <= 1 ORDER BY next_at, "
               "id LIMIT 1"_s;
        QTest::newRow("next") << u"message WHERE state = 'unknown' AND next_at IS NOT NULL"_s;
        QTest::newRow("old") << u"message WHERE done_at < 1 ORDER BY done_at LIMIT 100"_s;
        QTest::newRow("to bring")
            << u"received WHERE confirmed_at IS NULL AND id > 1 ORDER BY id LIMIT 1"_s;
        QTest::newRow("parts")
            << u"part WHERE whole IS NULL AND sender = 'a' AND reference = 1 AND "
               "count = 1 ORDER BY number"_s;
    }

    void searches_by_index() {
        QFETCH(QString, where);
        for (const QStringList& step :
             store_->database().texts(u"EXPLAIN QUERY PLAN SELECT * FROM "_s + where)) {
            QVERIFY2(step.at(3).contains(u"INDEX") && !step.at(3).contains(u"TEMP B-TREE"),
                     qPrintable(step.at(3)));
        }
    }
};

QTEST_GUILESS_MAIN(test_gateway_relay)
#include "test_gateway_relay.moc"
