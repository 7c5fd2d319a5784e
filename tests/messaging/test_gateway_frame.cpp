// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/gateway_frame.h"
#include "messaging/sms_length.h"
#include "tests/support/error_of.h"

#include <QTest>

using namespace Qt::StringLiterals;

class test_gateway_frame : public QObject {
    Q_OBJECT

private slots:
    void writes() {
        const auto hex = [](const QString& mobile, const QString& text) {
            return gateway_frame::to_bytes(gateway_frame::outgoing(mobile, text)).toHex();
        };
        QCOMPARE(hex(u"13912345678"_s, u"Hello"_s),
                 "3100310031003300390031003200330034003500360037003800480065006c006c006f00"_ba);
        QCOMPARE(hex({}, u"a\r\n"_s), "300061000d000a00"_ba);
        QCOMPARE(hex(u"1"_s, u"你好，😀"_s), "31003100604f7d590cff3dd800de"_ba);
        QCOMPARE(hex(u"1"_s, u"\uFEFF\u00e9"_s + QChar(0xDC00)), "31003100fffee90000dc"_ba);
    }

    void counts_short_messages() {
        const auto counted = [](const QString& text) {
            const sms_length length = sms_length::of(text);
            return u"%1/%2"_s.arg(length.characters).arg(length.messages);
        };
        const auto many = [](qsizetype count, QStringView text) {
            return text.toString().repeated(count);
        };
        QCOMPARE(counted({}), u"0/0"_s);
        QCOMPARE(counted(many(158, u"a") + u"@\n"_s), u"160/1"_s);
        QCOMPARE(counted(many(306, u"é") + u'ç'), u"307/5"_s); // a letter that is not in it
        QCOMPARE(counted(many(306, u"é") + u'Ç'), u"307/3"_s);
        QCOMPARE(counted(many(152, u"a") + u'€' + many(152, u"a")), u"305/3"_s); // not cut in two
        QCOMPARE(counted(many(70, u"中")), u"70/1"_s);
        QCOMPARE(counted(many(66, u"中") + u"😀"_s + many(66, u"中")), u"133/3"_s);
    }

    void splits_data() {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("read"); // mobile, time and text; empty if refused
        QTest::newRow("no text") << u"00386112240229000000"_s << u"1|20240229000000|"_s;
        QTest::newRow("any text") << u"013861391234567812991231010203it's\n\"0\" 好😀 "_s
                                  << u"13912345678|20991231010203|it's\n\"0\" 好😀 "_s;
        QTest::newRow("long time") << u"00386114240131235959xxok"_s << u"1|20240131235959|ok"_s;
        const QStringList refused{// Lengths: no numbers, too long, too short.
                                  u"0+386112240131235959ok"_s, u"0038611x240131235959ok"_s,
                                  u"014861391234567812240131235959ok"_s,
                                  u"00386106240131235959ok"_s,
                                  // Cut short.
                                  u"0"_s, u"01"_s, u"0038611"_s, u"003861122401312359"_s,
                                  // No such date or time.
                                  u"00386112241301235959ok"_s, u"00386112230229235959ok"_s,
                                  u"00386112240131240000ok"_s, u"003861122401312359xxok"_s};
        for (const QString& frame : refused) {
            QTest::newRow(qPrintable(frame)) << frame << QString();
        }
    }

    void splits() {
        QFETCH(QString, frame);
        QFETCH(QString, read);
        if (read.isEmpty()) {
            const auto error = error_of([&] { return gateway_frame::parse_received(frame); });
            QVERIFY(error == DataError::Kind::conversion);
            return;
        }
        const auto message = gateway_frame::parse_received(frame);
        const QString time = message.time.toString(u"yyyyMMddHHmmss"_s);
        QCOMPARE(QStringList({message.mobile, time, message.text}).join(u'|'), read);
    }
};

QTEST_GUILESS_MAIN(test_gateway_frame)
#include "test_gateway_frame.moc"
