// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/numbers.h"
#include "gateway/relay_rules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using gateway::fate;
using gateway::handover_result;

class test_gateway_rules : public QObject {
    Q_OBJECT

private slots:
    void follows_states_data() {
        QTest::addColumn<QString>("before");
        // After accepted, refused, not now, unknown; reports accepted/buffered, delivered,
        // undelivered.
        QTest::addColumn<QString>("after");
        QTest::newRow("queued") << u"queued"_s
                                << u"accepted queued queued queued accepted delivered failed"_s;
        QTest::newRow("handing") << u"handing"_s
                                 << u"accepted failed queued unknown accepted delivered failed"_s;
        QTest::newRow("unknown") << u"unknown"_s
                                 << u"accepted failed queued unknown accepted delivered failed"_s;
        QTest::newRow("accepted")
            << u"accepted"_s << u"accepted accepted accepted accepted accepted delivered failed"_s;
        QTest::newRow("delivered")
            << u"delivered"_s
            << u"delivered delivered delivered delivered delivered delivered delivered"_s;
        QTest::newRow("failed") << u"failed"_s
                                << u"failed failed failed failed failed delivered failed"_s;
        QTest::newRow("dropped") << u"dropped"_s
                                 << u"accepted dropped dropped dropped accepted delivered failed"_s;
    }

    void follows_states() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        const auto state = gateway::state_named(before).value();
        QStringList names;
        for (const auto result : {handover_result::accepted, handover_result::refused,
                                  handover_result::not_now, handover_result::unknown}) {
            names.append(name_of(state_after(state, result)));
        }
        for (const auto told : {fate::buffered, fate::delivered, fate::undelivered}) {
            names.append(name_of(state_after(state, told)));
        }
        QCOMPARE(names.join(u' '), after);
    }

    void pauses() {
        QCOMPARE(gateway::pause_after(1), 1s);
        QCOMPARE(gateway::pause_after(4), 8s);
        QCOMPARE(gateway::pause_after(9), 256s);
        QCOMPARE(gateway::pause_after(10), 300s);
        QCOMPARE(gateway::pause_after(10'000), 300s);
        QCOMPARE(gateway::ask_again_after(0s), 1s);
        QCOMPARE(gateway::ask_again_after(5s), 5s);
        QCOMPARE(gateway::ask_again_after(599s), 60s);
        QVERIFY(!gateway::ask_again_after(600s));
    }

    void tells_the_office_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("told");
        QTest::addColumn<int>("cause");
        QTest::addColumn<QString>("by"); // a = all, r = refused
        QTest::addColumn<QString>("notice");
        const auto row = [](const char* name, const QString& text, fate told,
                            gateway::failure_cause cause, const QString& by,
                            const QString& notice) {
            QTest::newRow(name) << text << static_cast<int>(told) << static_cast<int>(cause) << by
                                << notice;
        };
        using gateway::failure_cause;
        row("refused", u"您好"_s, fate::refused, failure_cause::unspecified, u"ar"_s,
            u"【未送达】网络拒绝发送：您好"_s);
        row("undelivered", QString(31, u'长'), fate::undelivered, failure_cause::absent, u"a"_s,
            u"【未送达】对方关机或不在服务区："_s + QString(30, u'长') + u'…');
        row("whole characters", QString(29, u'长') + u"😀x"_s, fate::refused,
            failure_cause::bad_number, u"ar"_s,
            u"【未送达】号码无效："_s + QString(29, u'长') + u'…');
        row("about a notice", u"【未送达】号码无效：您好"_s, fate::refused,
            failure_cause::unspecified, u""_s, {});
        row("delivered", u"您好"_s, fate::delivered, failure_cause::unspecified, u""_s, {});
    }

    void tells_the_office() {
        QFETCH(QString, text);
        QFETCH(int, told);
        QFETCH(int, cause);
        QFETCH(QString, by);
        QFETCH(QString, notice);
        const auto what = static_cast<fate>(told);
        using gateway::told_failures;
        QCOMPARE(is_told(told_failures::all, text, what), by.contains(u'a'));
        QCOMPARE(is_told(told_failures::refused, text, what), by.contains(u'r'));
        QVERIFY(!is_told(told_failures::none, text, what));
        if (!notice.isEmpty()) {
            QCOMPARE(failure_notice(text, what, static_cast<gateway::failure_cause>(cause)),
                     notice);
        }
    }

    void cleans_texts() {
        QCOMPARE(gateway::text_for_client(u"it's\0 a 'text'"_s), u"it’s a ’text’"_s);
    }

    void converts_numbers_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("network"); // empty: no number
        QTest::addColumn<QString>("field");   // of a message from there
        const auto row = [](const QString& typed, const QString& network, const QString& field) {
            QTest::newRow(qPrintable(typed)) << typed << network << field;
        };
        row(u"13912345678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        row(u"139-1234 5678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        row(u"+86 139 1234 5678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        row(u"008613912345678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        row(u"01012345678"_s, u"+861012345678"_s, u"8601012345678"_s);
        row(u"+14155550123"_s, u"+14155550123"_s, u"000014155550123"_s);
        row(u"0085291234567"_s, u"+85291234567"_s, u"000085291234567"_s);
        row(u"10086"_s, u"10086"_s, u"8610086"_s);
        row(u"106901234567890"_s, u"106901234567890"_s, u"86106901234567890"_s);
        for (const QString& none :
             {u"12"_s, u"+1"_s, u"0012"_s, u"123456789012345678901"_s, u"1391234567a"_s,
              u"１３９１２３４５６７８"_s, u""_s, u"++123"_s}) {
            row(none, {}, {});
        }
    }

    void converts_numbers() {
        QFETCH(QString, typed);
        QFETCH(QString, network);
        QFETCH(QString, field);
        const gateway::number_settings rules;
        QCOMPARE(network_number(rules, typed).value_or(QString()), network);
        if (!network.isEmpty()) {
            QCOMPARE(sender_field(rules, network), field);
        }
    }

    void shows_senders() {
        const gateway::number_settings rules;
        QCOMPARE(sender_field(rules, u"8613912345678"_s), u"8613912345678"_s); // without the sign
        QCOMPARE(sender_field(rules, u"13912345678"_s), u"8613912345678"_s);
        QCOMPARE(sender_field(rules, u"Bank"_s), u"86Bank"_s);
        QCOMPARE(sender_field(rules, QString(200, u'x')).size(), 99);
    }
};

QTEST_GUILESS_MAIN(test_gateway_rules)
#include "test_gateway_rules.moc"
