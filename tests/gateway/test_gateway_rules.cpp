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
    // For each state the ones after accepted, refused, not now, unknown; then after the reports
    // buffered, delivered, undelivered.
    void follows_states() {
        const QStringList table{
            u"queued: accepted queued queued queued accepted delivered failed"_s,
            u"handing: accepted failed queued unknown accepted delivered failed"_s,
            u"unknown: accepted failed queued unknown accepted delivered failed"_s,
            u"accepted: accepted accepted accepted accepted accepted delivered failed"_s,
            u"delivered: delivered delivered delivered delivered delivered delivered delivered"_s,
            u"failed: failed failed failed failed failed delivered failed"_s,
            u"dropped: accepted dropped dropped dropped accepted delivered failed"_s};
        for (const QString& row : table) {
            const QString before = row.section(u':', 0, 0);
            const auto state = gateway::state_named(before).value();
            QStringList names{before + u':'};
            for (const auto result : {handover_result::accepted, handover_result::refused,
                                      handover_result::not_now, handover_result::unknown}) {
                names.append(name_of(state_after(state, result)));
            }
            for (const auto told : {fate::buffered, fate::delivered, fate::undelivered}) {
                names.append(name_of(state_after(state, told)));
            }
            QCOMPARE(names.join(u' '), row);
        }
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

    void tells_the_office() {
        using gateway::failure_cause;
        using gateway::told_failures;
        // Who is told: a = who wants all, r = who wants refusals.
        const auto told = [](const QString& text, fate what, failure_cause cause, const QString& by,
                             const QString& notice) {
            QCOMPARE(is_told(told_failures::all, text, what), by.contains(u'a'));
            QCOMPARE(is_told(told_failures::refused, text, what), by.contains(u'r'));
            QVERIFY(!is_told(told_failures::none, text, what));
            QCOMPARE(by.isEmpty() ? QString() : failure_notice(text, what, cause), notice);
        };
        told(u"您好"_s, fate::refused, failure_cause::unspecified, u"ar"_s,
             u"【未送达】网络拒绝发送：您好"_s);
        told(QString(31, u'长'), fate::undelivered, failure_cause::absent, u"a"_s,
             u"【未送达】对方关机或不在服务区："_s + QString(30, u'长') + u'…');
        told(QString(29, u'长') + u"😀x"_s, fate::refused, failure_cause::bad_number, u"ar"_s,
             u"【未送达】号码无效："_s + QString(29, u'长') + u'…'); // whole characters
        told(u"【未送达】号码无效：您好"_s, fate::refused, failure_cause::unspecified, {}, {});
        told(u"您好"_s, fate::delivered, failure_cause::unspecified, {}, {});
    }

    void cleans_texts() {
        QCOMPARE(gateway::text_for_client(u"it's\0 a 'text'"_s), u"it’s a ’text’"_s);
    }

    void converts_numbers() {
        const gateway::number_settings rules;
        const auto goes = [&rules](const QString& typed, const QString& network,
                                   const QString& field) {
            QCOMPARE(network_number(rules, typed).value_or(QString()), network);
            QCOMPARE(sender_field(rules, network), field); // of a message from there
        };
        goes(u"13912345678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        goes(u"139-1234 5678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        goes(u"+86 139 1234 5678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        goes(u"008613912345678"_s, u"+8613912345678"_s, u"8613912345678"_s);
        goes(u"01012345678"_s, u"+861012345678"_s, u"8601012345678"_s);
        goes(u"+14155550123"_s, u"+14155550123"_s, u"000014155550123"_s);
        goes(u"0085291234567"_s, u"+85291234567"_s, u"000085291234567"_s);
        goes(u"10086"_s, u"10086"_s, u"8610086"_s);
        goes(u"106901234567890"_s, u"106901234567890"_s, u"86106901234567890"_s);
        for (const QString& none :
             {u"12"_s, u"+1"_s, u"0012"_s, u"123456789012345678901"_s, u"1391234567a"_s,
              u"１３９１２３４５６７８"_s, u""_s, u"++123"_s}) {
            QVERIFY2(!network_number(rules, none), qPrintable(none));
        }
        QCOMPARE(sender_field(rules, u"8613912345678"_s), u"8613912345678"_s); // without the sign
        QCOMPARE(sender_field(rules, u"13912345678"_s), u"8613912345678"_s);
        QCOMPARE(sender_field(rules, u"Bank"_s), u"86Bank"_s);
        QCOMPARE(sender_field(rules, QString(200, u'x')).size(), 99);
    }
};

QTEST_GUILESS_MAIN(test_gateway_rules)
#include "test_gateway_rules.moc"
