// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_parameter.h"
#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"
#include "data/strconn.h"
#include "messaging/dispatch_engine.h"
#include "messaging/gateway_frame.h"
#include "platform/database/exclusive_lease.h"
#include "tests/messaging/scripted_gateway.h"
#include "tests/support/test_database.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using state = Winsock::StateEnum;

namespace {

/// The engine between its own database and its own gateway, and a word for all that can happen.
struct stage : test_database {
    scripted_gateway gateway;
    c_parameter parameters;
    c_sendsms outgoing;
    c_recvedsms received;
    m_sendsmses queue;
    exclusive_lease turn{path()};
    std::optional<exclusive_lease> colleague; ///< another client's
    QDateTime clock = system_clock();
    dispatch_engine engine{{parameters, outgoing, received, queue, &turn}};
    QSignalSpy endings{&engine, &dispatch_engine::finished};
    QSignalSpy arrivals{&engine.Winsock1, &Winsock::DataArrival};
    QStringList expected_frames;
    int expected_connections = 0;

    const QHash<QString, std::function<void()>> happenings{
        {u"poll"_s, [this] { engine.initsend(); }},
        {u"timeout"_s, [this] { emit engine.Timer2.Timer(); }},
        {u"stop"_s, [this] { engine.StopTomer(); }},
        {u"shut"_s, [this] { gateway.close(); }},
        {u"open"_s, [this] { gateway.listen(); }},
        {u"refused"_s, [this] { QTRY_COMPARE(engine.Winsock1.State(), state::error); }},
        {u"linked"_s, [this] { expect_link(); }},
        {u"hangup"_s, [this] { expect_end(&scripted_gateway::hang_up); }},
        {u"reset"_s, [this] { expect_end(&scripted_gateway::reset); }},
        {u"rubbish"_s, [this] { gateway.say(QString(2 << 20, u'\xd8d8')); }},
        {u"noport"_s, [] { execute(u"delete from parameters"_s); }},
        {u"port"_s, [this] { set_port(gateway.port()); }},
        {u"otherport"_s, [] { set_port(1); }},
        {u"edit2"_s, [] { execute(u"update sendsms set sms = 'new' where smsid = 2"_s); }},
        {u"delete3"_s, [] { execute(u"delete from sendsms where smsid = 3"_s); }},
        {u"taken"_s, [this] { QVERIFY(colleague.emplace(linked_path()).try_take()); }},
        {u"mine"_s, [this] { QVERIFY(!colleague.emplace(linked_path()).try_take()); }},
        {u"died"_s, [this] { colleague.reset(); }},
        {u"leaseless"_s, [this] { QVERIFY(QFile::remove(path() + u"-lease"_s)); }},
        {u"nothing"_s,
         [this] {
             QCOMPARE(engine.Winsock1.State(),
                      expected_connections == 0 ? state::closed : state::connected);
             QVERIFY(queue.Count() == 0 && engine.sendready());
         }},
        {u"away"_s, [this] { QVERIFY(QFile::rename(path(), path() + u'2')); }},
        {u"back"_s, [this] { QVERIFY(QFile::rename(path() + u'2', path())); }},
        {u"finish"_s, [this] { engine.finish(); }},
        {u"going"_s, [this] { QCOMPARE(endings.count(), 0); }},
        {u"gone"_s, [this] { QCOMPARE(endings.count(), 1); }},
        {u"day+"_s, [this] { clock = clock.addDays(1); }},
        {u"second+"_s, [this] { clock = clock.addSecs(1); }},
        {u"hour-"_s, [this] { clock = clock.addSecs(-3600); }},
        {u"tomorrow"_s,
         [this] {
             execute(u"insert into sendsms (mobile, sms, stime) values ('13912345678', 'later', "
                     "'%1')"_s.arg(fmtdatetime(clock.addDays(1))));
         }},
        {u"big"_s, [] { execute(u"insert into sendsms (smsid, stime) values (40000, '2023')"_s); }},
        {u"lock1"_s,
         [] {
             execute(u"create trigger lock before update on sendsms when old.smsid = 1 "
                     "begin select raise(abort, ''); end"_s);
         }},
        {u"lockin"_s,
         [] {
             execute(u"create trigger lock before insert on recvedsms "
                     "begin select raise(abort, ''); end"_s);
         }},
        {u"free"_s, [] { execute(u"drop trigger lock"_s); }}};

    stage() {
        outgoing.now = [this] { return clock; };
        parameters.connection = outgoing.connection = received.connection = strconn;
        gateway.listen();
        set_port(gateway.port());
    }

    /// Another name of the database, as a colleague may use it.
    [[nodiscard]] QString linked_path() const {
        QFile::link(path(), folder() + u"/link.mdb"_s);
        return folder() + u"/link.mdb"_s;
    }

    static void set_port(quint16 port) {
        execute(u"delete from parameters"_s);
        execute(u"insert into parameters values ('127.0.0.1', %1)"_s.arg(port));
    }

    void expect_link() {
        QTRY_COMPARE(engine.Winsock1.State(), state::connected);
        ++expected_connections;
        QTRY_COMPARE(gateway.connections, expected_connections);
    }

    void expect_end(void (scripted_gateway::*end)()) {
        (gateway.*end)();
        QTRY_COMPARE(engine.Winsock1.State(), state::closing);
    }

    /// "<text": the gateway says it; ">text": this message is the next on the wire; otherwise a
    /// happening, or the text of a message that is written and due.
    void play(const QString& step) {
        if (step.startsWith(u'<')) {
            arrivals.clear();
            gateway.say(step.sliced(1));
            QTRY_COMPARE(arrivals.count(), 1);
        } else if (step.startsWith(u'>')) {
            expected_frames.append(u"1113912345678"_s + step.sliced(1));
            QTRY_COMPARE(gateway.frames, expected_frames);
        } else if (happenings.contains(step)) {
            happenings.value(step)();
        } else {
            execute(u"insert into sendsms (mobile, sms, stime) "
                    "values ('13912345678', '%1', '2024/01/31 08:00:00')"_s.arg(step));
        }
    }

    void play_all(const QString& script) {
        for (const QString& step : script.split(u' ')) {
            play(step);
            if (QTest::currentTestFailed()) {
                qWarning("at %s", qPrintable(step));
                return;
            }
        }
    }

    /// Every row's mark, how many messages the queue holds, whether one of them is in flight.
    [[nodiscard]] QString outcome() const {
        const QStringList marks = rows(u"select sendisok from sendsms order by smsid"_s);
        const QString flight = engine.sendready() ? u"idle"_s : u"in flight"_s;
        return u"%1, %2 left, %3"_s.arg(marks.join(u' ')).arg(queue.Count()).arg(flight);
    }
};

} // namespace

class test_dispatch_engine : public QObject {
    Q_OBJECT

private slots:
    void plays_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char* name, const QString& script, const QString& outcome,
                            const QString& stored = {}) {
            QTest::newRow(name) << script << outcome << stored;
        };
        row("one at a time",
            u"poll linked 好😀 b c poll >好😀 d poll <1 >b <2 >c poll <1 >d <1 >b <1"_s,
            u"-1 -1 -1 -1, 0 left, idle"_s);
        row("two verdicts", u"poll linked a b c poll >a <12 >b <21 >c"_s,
            u"-1 0 0, 1 left, in flight"_s);
        row("unknown", u"poll linked a b poll >a <3 <x1 <１ <\u3100"_s,
            u"0 0, 2 left, in flight"_s);
        row("verdict on nothing", u"poll linked <1 <2 a poll >a"_s, u"0, 1 left, in flight"_s);
        row("late verdict", u"poll linked a b poll >a timeout >b <1 poll >a"_s,
            u"0 -1, 1 left, in flight"_s);
        row("stopped", u"poll linked a b poll >a stop <1 >b <013861391234567812240131235959ok"_s,
            u"-1 0, 1 left, in flight"_s, u"13912345678|ok|2024/01/31 23:59:59|0"_s);
        row("link not up yet", u"a b poll linked poll timeout >b poll <1 >a"_s,
            u"0 -1, 1 left, in flight"_s);
        row("link refused", u"shut a b poll refused open timeout poll refused timeout timeout"_s,
            u"0 0, 0 left, idle"_s);
        row("link closed", u"poll linked a b poll >a otherport rubbish hangup poll linked <1 >b"_s,
            u"-1 0, 1 left, in flight"_s);
        row("link reset", u"poll linked a b poll >a reset poll linked timeout >b <1"_s,
            u"0 -1, 0 left, idle"_s);
        row("no parameters", u"noport a poll port poll linked timeout poll >a"_s,
            u"0, 1 left, in flight"_s);
        row("not stored",
            u"poll linked a poll >a <00386112240131235959it's <00386112241331235959ok <0 <1"_s,
            u"-1, 0 left, idle"_s);
        row("rows changed", u"poll linked a b c poll >a edit2 delete3 <1 >b <1 >c <1"_s,
            u"-1 -1, 0 left, idle"_s);
        const QString received = u"<013861391234567812240131235959"_s;
        const QString stored = u"13912345678|%1|2024/01/31 23:59:59|0"_s;
        row("mark fails", u"poll linked a b poll >a lock1 <1 >b poll <1 poll nothing free poll"_s,
            u"-1 -1, 0 left, idle"_s);
        row("mark fails, lease lost",
            u"poll linked a poll >a lock1 <1 leaseless taken poll free poll nothing"_s,
            u"-1, 0 left, idle"_s);
        row("mark fails, link stuck",
            u"poll linked a poll >a lock1 <1 hangup shut poll refused poll mine free poll taken"_s,
            u"-1, 0 left, idle"_s);
        row("storing fails",
            u"poll linked lockin %11 poll %1it's %12 free %13 poll"_s.replace(u"%1"_s, received),
            u", 0 left, idle"_s,
            QStringList{stored.arg(1), stored.arg(2), stored.arg(3)}.join(u' '));
        row("database away", u"poll linked a b poll >a away <1 poll nothing back poll >b <1"_s,
            u"-1 -1, 0 left, idle"_s);
        row("finished", u"poll linked a b poll >a finish poll going <1 gone"_s,
            u"-1 0, 0 left, idle"_s);
        row("finished unanswered", u"poll linked a poll >a finish going timeout gone"_s,
            u"0, 0 left, idle"_s);
        row("finished, mark fails",
            u"poll linked a poll >a lock1 finish <1 poll going free poll gone"_s,
            u"-1, 0 left, idle"_s);
        row("finished, mark fails for good",
            u"poll linked a poll >a lock1 <1 finish going timeout gone"_s, u"0, 0 left, idle"_s);
        row("finished idle", u"poll linked finish gone"_s, u", 0 left, idle"_s);
        row("finished without a link", u"shut a b poll refused finish gone"_s,
            u"0 0, 1 left, in flight"_s);
        row("search fails", u"poll linked a b big poll >a <1 >b <1"_s, u"-1 -1 0, 0 left, idle"_s);
        row("a colleague's turn",
            u"taken a poll nothing died poll linked timeout poll >a mine <1"_s,
            u"-1, 0 left, idle"_s);
        row("stuck link gives way", u"shut a b poll refused poll mine timeout taken poll"_s,
            u"0 0, 2 left, in flight"_s);
        row("stuck link stands back", u"shut a poll refused timeout poll taken died poll taken"_s,
            u"0, 1 left, in flight"_s);
        row("idle stuck link", u"shut poll refused poll taken a poll"_s, u"0, 1 left, in flight"_s);
        row("lease deleted",
            u"poll linked a b poll >a leaseless taken poll <1 poll edit2 died poll >new"_s,
            u"-1 0, 1 left, in flight"_s);
        row("clock",
            u"tomorrow poll linked day+ poll nothing second+ poll >later hour- a <1 poll >a <1"_s,
            u"-1 -1, 0 left, idle"_s);
    }

    void plays() {
        QFETCH(QString, script);
        stage s;
        s.play_all(script);
        QTEST(s.outcome(), "outcome");
        QTEST(s.rows(u"select mobile, sms, rtime, readed from recvedsms"_s).join(u' '), "stored");
        QVERIFY(!s.endings.isEmpty() || s.engine.Timer2.Enabled() != s.engine.sendready());
        QCOMPARE(s.gateway.frames, s.expected_frames);
    }

    void timers() {
        stage s;
        QVERIFY(s.engine.Timer1.Enabled() && s.engine.Timer1.Interval() == 60000);
        QCOMPARE(s.engine.Timer2.Interval(), 10000);
        s.engine.startTimer();
        QVERIFY(s.engine.Timer1.Interval() == 2000 && s.engine.Timer2.Interval() == 60000);
        s.play_all(u"poll linked a"_s);
        s.engine.Timer1.set_Interval(1);
        s.play(u">a"_s);
        s.engine.StopTomer();
        QVERIFY(s.engine.Timer1.Interval() == 0 && s.engine.Timer2.Interval() == 0);
        s.engine.finish(); // waits for a verdict no longer than usual
        QCOMPARE(s.engine.Timer2.Interval(), 10000);
        s.engine.Timer2.set_Interval(1);
        QTRY_COMPARE(s.outcome(), u"0, 0 left, idle"_s);
    }

    void keeps_no_more_than_memory_is_to_be_spent_on() {
        const stage s;
        c_recvedsms received;
        received.connection.clear(); // of no database
        unwritten_answers answers(s.outgoing, received);
        for (int i = 0; i < 20; ++i) {
            static_cast<void>(answers.store({u"1"_s, s.clock, QString(1 << 20, u'x')}));
        }
        received.connection = strconn;
        QVERIFY(answers.retry());
        QCOMPARE(s.value(u"select count(*) from recvedsms"_s), 16);
        QVERIFY(answers.is_empty());
    }

    void floods_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray head = gateway_frame::to_bytes(u"013861391234567812240131235959"_s);
        const QByteArray halves(10001, '\xd8');
        QTest::newRow("received") << head + halves.chopped(1);
        QTest::newRow("halves") << head + halves;
        QTest::newRow("verdicts") << gateway_frame::to_bytes(u"1"_s).repeated(5000);
    }

    // What a gateway gone mad sends is taken in small parts, and the window gets its turn between.
    void floods() {
        QFETCH(QByteArray, bytes);
        constexpr int total = 100'000'000;
        constexpr int most_at_once = 1 << 20;
        std::future<void> flood; // outlives the engine, whose end also ends a flood
        stage s;
        s.play_all(u"poll linked a poll >a hangup poll linked"_s);
        QTimer window;
        const QSignalSpy turns(&window, &QTimer::timeout);
        window.start(0);
        flood = s.gateway.flood(bytes, total);
        QTRY_VERIFY_WITH_TIMEOUT(flood.wait_for(0s) == std::future_status::ready, 60000);
        QTRY_VERIFY(s.arrivals.count() >= total / most_at_once);
        QVERIFY(turns.count() >= s.arrivals.count() / 2);
        const QVariant longest = s.value(u"select max(length(sms)) from recvedsms"_s);
        QVERIFY(longest.toInt() <= most_at_once / 2);
        s.play_all(u"hangup poll linked <007861391212240131235959ok"_s);
        QCOMPARE(s.value(u"select sms from recvedsms order by smsrid desc"_s), u"ok"_s);
    }
};

QTEST_GUILESS_MAIN(test_dispatch_engine)
#include "test_dispatch_engine.moc"
