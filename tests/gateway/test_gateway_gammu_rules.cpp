// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_inbox.h"
#include "gateway/gammu_parts.h"
#include "gateway/gammu_verdict.h"

#include <QTest>

using namespace Qt::StringLiterals;
using gateway::gammu_state;

/// What gammu-smsd's tables mean, without a database.
class test_gateway_gammu_rules : public QObject {
    Q_OBJECT

private slots:
    void splits() {
        const auto splits_into = [](const QString& text, bool unicode, const QList<int>& wanted) {
            const auto split = gateway::gammu_parts_of(text, 0x1a7);
            QCOMPARE(split.is_unicode, unicode);
            QList<int> lengths;
            QString joined;
            for (const auto& part : split.parts) {
                lengths.append(static_cast<int>(part.text.size()));
                joined += part.text;
                const auto place = gateway::place_in(part.udh);
                QCOMPARE(place.has_value(), split.parts.size() > 1);
                if (place) {
                    QCOMPARE(place->reference, 0xa7);
                    QCOMPARE(place->number, static_cast<int>(lengths.size()));
                    QCOMPARE(place->count, static_cast<int>(split.parts.size()));
                }
            }
            QCOMPARE(lengths, wanted);
            QVERIFY(split.parts.isEmpty() || joined == QString(text).remove(QChar(u'\0')));
        };
        splits_into({}, false, {});
        splits_into(QString(1, QChar(u'\0')), false, {});
        splits_into(u"好%1的"_s.arg(QChar(u'\0')), true, {2});
        for (const int length : {70, 71, 134, 135}) {
            const QList<int> lengths = length <= 70    ? QList<int>{length}
                                       : length <= 134 ? QList<int>{67, length - 67}
                                                       : QList<int>{67, 67, 1};
            splits_into(QString(length, u'好'), true, lengths);
        }
        splits_into(QString(160, u'@'), false, {160});
        splits_into(QString(161, u'ü'), false, {153, 8});
        splits_into(QString(306, u'x'), false, {153, 153});
        splits_into(QString(307, u'x'), false, {153, 153, 1});
        splits_into(QString(80, u'€'), false, {80});
        splits_into(u"^{}\\[~]|€"_s.repeated(9), false, {76, 5});
        splits_into(u"`"_s, true, {1});
        splits_into(u"😀"_s.repeated(35), true, {70});
        splits_into(QString(66, u'好') + u"😀"_s.repeated(3), true, {66, 6});
        splits_into(QString(71, QChar(0xd83d)), true, {67, 4});
        constexpr qsizetype longest = qsizetype{255} * 67;
        splits_into(QString(longest, u'好'), true, QList<int>(255, 67));
        splits_into(QString(longest + 1, u'好'), true, {});
    }

    void judges_data() {
        QTest::addColumn<QString>("queued"); // words about the row in the queue, or none
        QTest::addColumn<QString>("sent");   // the parts' states, a code behind a colon
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("cause");
        const auto row = [](const char* queued, const char* sent, gammu_state state,
                            gateway::failure_cause cause = gateway::failure_cause::unspecified) {
            QTest::addRow("%s | %s", queued, sent)
                << QString::fromLatin1(queued) << QString::fromLatin1(sent)
                << static_cast<int>(state) << static_cast<int>(cause);
        };
        row("", "", gammu_state::absent);
        row("1", "", gammu_state::untouched);
        row("1 tried sending", "", gammu_state::sending);
        row("1 tried", "", gammu_state::retrying);
        row("1 tried sending left", "", gammu_state::doubtful);
        row("1 tried held", "", gammu_state::held);
        row("1 tried sending left", "SendingOK", gammu_state::accepted);
        row("1 tried held", "SendingOKNoReport", gammu_state::accepted);
        row("2 tried sending", "SendingOK", gammu_state::sending);
        row("2 tried sending left", "SendingOK", gammu_state::doubtful);
        row("1 tried", "SendingError:38", gammu_state::retrying);
        row("", "SendingOKNoReport", gammu_state::accepted);
        row("", "SendingOK DeliveryOK", gammu_state::accepted);
        row("", "DeliveryOK DeliveryOK", gammu_state::delivered);
        row("", "DeliveryOK DeliveryPending", gammu_state::buffered);
        row("", "DeliveryUnknown", gammu_state::accepted);
        row("", "DeliveryPending DeliveryFailed:70", gammu_state::undelivered,
            gateway::failure_cause::expired);
        row("", "DeliveryFailed:67", gammu_state::undelivered, gateway::failure_cause::bad_number);
        row("", "SendingError:30", gammu_state::refused, gateway::failure_cause::bad_number);
        row("", "SendingOK Error:10", gammu_state::refused, gateway::failure_cause::blocked);
        row("", "SendingError:500", gammu_state::refused);
    }

    void judges() {
        QFETCH(QString, queued);
        QFETCH(QString, sent);
        gateway::gammu_trace trace{.id = 7};
        if (!queued.isEmpty()) {
            trace.queued = {queued.contains(u"tried"), queued.contains(u"sending"),
                            queued.contains(u"left"), queued.contains(u"held"),
                            queued.section(u' ', 0, 0).toInt()};
        }
        for (const QString& part : sent.split(u' ', Qt::SkipEmptyParts)) {
            const int code = part.section(u':', 1).toInt();
            trace.sent.append({part.section(u':', 0, 0), code, code, 255});
        }
        const auto found = gateway::judge(trace);
        QTEST(static_cast<int>(found.state), "state");
        QTEST(static_cast<int>(found.cause), "cause");
        const auto result = gateway::to_handover(found).result;
        const bool is_refused = found.state == gammu_state::refused;
        QVERIFY((result == gateway::handover_result::refused) == is_refused);
        QVERIFY((result == gateway::handover_result::unknown) ==
                (found.state < gammu_state::accepted));
        QCOMPARE(gateway::to_report(7, found).has_value(), gateway::is_done(found.state));
    }

    void reads_received_data() {
        QTest::addColumn<QString>("coding");
        QTest::addColumn<QString>("udh");
        QTest::addColumn<QString>("hex");
        QTest::addColumn<QString>("text"); // null: brings nothing
        QTest::addColumn<QList<int>>("place");
        const auto row = [](const char* name, const QString& coding, const QString& udh,
                            const QString& hex, const QString& text,
                            const QList<int>& place = {0, 1, 1}) {
            QTest::newRow(name) << coding << udh << hex << text << place;
        };
        const QString unicode = u"Unicode_No_Compression"_s;
        row("text", unicode, {}, u"002700200027D83DDE00"_s, u"' '😀"_s);
        row("7-bit", u"Default_No_Compression"_s, {}, u"0061"_s, u"a"_s);
        row("empty", unicode, {}, {}, u"【空白短信】"_s);
        row("part", unicode, u"050003070201"_s, u"0061"_s, u"a"_s, {7, 1, 2});
        row("part behind another element", unicode, u"0B0B00080401020503240101"_s, u"0061"_s,
            u"a"_s, {0x102, 3, 5});
        row("long reference", unicode, u"06080412340302"_s, u"0061"_s, u"a"_s, {0x1234, 2, 3});
        row("empty part", unicode, u"050003070202"_s, {}, u""_s, {7, 2, 2});
        row("piece 3 of 2", unicode, u"050003070203"_s, u"0061"_s, u"a"_s);
        row("piece 0", unicode, u"050003070200"_s, u"0061"_s, u"a"_s);
        row("header cut", unicode, u"05000307"_s, u"0061"_s, u"a"_s);
        row("header of ones", unicode, u"FFFFFFFFFFFF"_s, u"0061"_s, u"a"_s);
        row("no digits", unicode, u"zz"_s, u"00zz"_s, u"decoded"_s);
        row("half a character", unicode, {}, u"006"_s, u"decoded"_s);
        row("data", u"8bit"_s, {}, u"DEADBEEF"_s, u"【无法显示】4 字节的数据，例如彩信通知"_s);
        row("first part of data", u"8bit"_s, u"0B05040B8423F00003070201"_s, u"DEAD"_s,
            u"【无法显示】2 字节的数据，例如彩信通知"_s);
        row("next part of data", u"8bit"_s, u"0B05040B8423F00003070202"_s, u"DEAD"_s, {});
    }

    void reads_received() {
        QFETCH(QString, coding);
        QFETCH(QString, udh);
        QFETCH(QString, hex);
        QFETCH(QString, text);
        const auto part =
            gateway::to_incoming({3, u"a"_s, u"+8613900000001"_s, u"2026-01-02 03:04:05"_s, coding,
                                  udh, hex, u"decoded"_s});
        QCOMPARE(part.has_value(), !text.isNull());
        if (part) {
            QCOMPARE(part->piece.text, text);
            QTEST((QList<int>{part->reference, part->number, part->count}), "place");
            QCOMPARE(part->piece.key, u"gammu:a:3:2026-01-02 03:04:05"_s);
            QCOMPARE(part->piece.time, QDateTime({2026, 1, 2}, {3, 4, 5}));
        }
    }
};

QTEST_GUILESS_MAIN(test_gateway_gammu_rules)
#include "test_gateway_gammu_rules.moc"
