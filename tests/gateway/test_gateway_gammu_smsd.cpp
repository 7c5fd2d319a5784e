// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/gateway/gammu_stage.h"

using namespace Qt::StringLiterals;
using gateway::handover_result;

/// Our engine with the real gammu-smsd and its dummy phone.
class test_gateway_gammu_smsd : public QObject {
    Q_OBJECT

private slots:
    void sends() {
        gammu_stage stage;
        stage.start_daemon();
        stage.start_engine();
        const QList<std::pair<QString, QStringList>> messages{
            {QString(70, u'好'), {QString(70, u'好')}},
            {QString(71, u'好'), {QString(67, u'好'), QString(4, u'好')}},
            {QString(134, u'好'), {QString(67, u'好'), QString(67, u'好')}},
            {QString(135, u'好'), {QString(67, u'好'), QString(67, u'好'), u"好"_s}},
            {QString(66, u'好') + u"😀祝您生日快乐"_s, {QString(66, u'好'), u"😀祝您生日快乐"_s}},
            {u"it's ^{}\\[~]|€ \"%s\""_s, {u"it's ^{}\\[~]|€ \"%s\""_s}},
        };
        for (qsizetype i = 0; i < messages.size(); ++i) {
            stage.engine->hand_over({i, u"+8613912345678"_s, messages[i].first});
        }
        QTRY_COMPARE_WITH_TIMEOUT(stage.sink.settles, messages.size(), 60'000);
        for (qsizetype i = 0; i < messages.size(); ++i) {
            QVERIFY(stage.sink.settled[i].result == handover_result::accepted);
            QCOMPARE(stage.column(u"SELECT TextDecoded FROM sentitems WHERE CreatorID = "
                                  "'smsgateway/%1' ORDER BY SequencePosition"_s.arg(i)),
                     messages[i].second);
        }
        QCOMPARE(stage.column(u"SELECT DISTINCT DestinationNumber FROM sentitems"_s),
                 QStringList{u"+8613912345678"_s});
    }

    void receives() {
        gammu_stage stage;
        stage.start_daemon();
        stage.start_engine();
        stage.receive(u"+8613900000001"_s, u"it's 😀 好"_s);
        stage.receive(u"+8613900000002"_s, QString(67, u'好'), u"050003070201"_s);
        stage.receive(u"+8613900000002"_s, u"完"_s, u"050003070202"_s);
        QTRY_COMPARE_WITH_TIMEOUT(stage.sink.parts.size(), 2, 60'000);
        QCOMPARE(stage.sink.received.size(), 1);
        QCOMPARE(stage.sink.received.first().sender, u"+8613900000001"_s);
        QCOMPARE(stage.sink.received.first().text, u"it's 😀 好"_s);
        QCOMPARE(stage.sink.received.first().time, QDateTime({2026, 1, 2}, {3, 4, 5}));
        QCOMPARE(stage.sink.parts.first().piece.text, QString(67, u'好'));
        QCOMPARE(stage.sink.parts.last().piece.text, u"完"_s);
        QCOMPARE(stage.sink.parts.last().number, 2);
        QTRY_COMPARE(stage.column(u"SELECT ID FROM inbox WHERE Processed = 'true'"_s).size(), 3);
    }

    void goes_on_after_the_daemon_was_down() {
        gammu_stage stage;
        stage.start_daemon();
        stage.start_engine();
        QTRY_VERIFY(stage.engine->health().up);
        stage.stop_daemon();
        stage.engine->hand_over({1, u"10086"_s, u"first"_s});
        QTRY_COMPARE(stage.column(u"SELECT ID FROM outbox"_s).size(), 1);
        stage.sign_in(u"-3 minutes"_s);
        stage.run(u"DELETE FROM phones WHERE IMEI <> '1'"_s);
        QTRY_COMPARE(stage.sink.settles, 1);
        QVERIFY(stage.sink.settled[1].result == handover_result::not_now);
        QVERIFY(!stage.engine->health().up);

        stage.start_daemon();
        QTRY_VERIFY(stage.engine->health().up);
        stage.engine->hand_over({1, u"10086"_s, u"first"_s});
        QTRY_COMPARE_WITH_TIMEOUT(stage.sink.settles, 2, 60'000);
        QVERIFY(stage.sink.settled[1].result == handover_result::accepted);
        QCOMPARE(stage.column(u"SELECT ID FROM sentitems"_s).size(), 1);
    }
};

QTEST_GUILESS_MAIN(test_gateway_gammu_smsd)
#include "test_gateway_gammu_smsd.moc"
