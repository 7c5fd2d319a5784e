// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/frame_joiner.h"
#include "gateway/outbox.h"
#include "gateway/wire.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class test_gateway_wire : public QObject {
    Q_OBJECT

private slots:
    void reads_submission_data() {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("read"); // the mobile, a bar, the text; empty if refused
        QTest::newRow("one digit") << u"9123456789hi"_s << u"123456789|hi"_s;
        QTest::newRow("two digits not a number")
            << u"31234567890123456hello and good bye"_s << u"123|4567890123456hello and good bye"_s;
        QTest::newRow("both fit, two win") << u"1123456789012"_s << u"23456789012|"_s;
        QTest::newRow("plus") << u"14+8613912345678x"_s << u"+8613912345678|x"_s;
        QTest::newRow("text of all kinds")
            << u"11139123456782020你好😀\n"_s << u"13912345678|2020你好😀\n"_s;
        for (const QString& refused :
             {u""_s, u"1"_s, u"9123"_s, u"Hello"_s, u"5Helloworld"_s, u"1+text"_s, u"31+2text"_s,
              u"\uFEFF1113912345678Hello"_s, u"９123456789hi"_s}) {
            QTest::newRow(qPrintable(refused)) << refused << QString();
        }
    }

    void reads_submission() {
        QFETCH(QString, frame);
        QFETCH(QString, read);
        const QByteArray bytes = gateway::encode_text(frame);
        const auto message = gateway::parse_submission(bytes);
        QCOMPARE(message ? message->mobile + u'|' + message->text : QString(), read);
        QVERIFY(!gateway::parse_submission(bytes + 'x')); // half a character too many
    }

    void writes_frames() {
        QCOMPARE(gateway::encode(gateway::verdict::sent), QByteArray::fromHex("3100"));
        QCOMPARE(gateway::encode(gateway::verdict::failed), QByteArray::fromHex("3200"));
        const QDateTime time(QDate(2009, 3, 5), QTime(7, 8, 9));
        QCOMPARE(gateway::decode_text(gateway::encode({u"8610086"_s, time, u"好 0"_s})),
                 u"007861008612090305070809好 0"_s);
    }

    void joins() {
        gateway::frame_joiner joiner(1h);
        QStringList frames;
        connect(&joiner, &gateway::frame_joiner::frame_read, this,
                [&](const QByteArray& frame) { frames.append(QString::number(frame.size())); });
        // The frames' sizes; a bar stands for the pause behind the arrivals.
        const auto joined = [&](const QList<qsizetype>& arrivals) {
            frames.clear();
            for (const qsizetype size : arrivals) {
                joiner.add(QByteArray(size, 'x'));
            }
            frames.append(u"|"_s);
            joiner.finish();
            return frames.join(u' ');
        };
        QCOMPARE(joined({36, 40}), u"36 40 |"_s);
        QCOMPARE(joined({17, 19, 4, 37}), u"36 4 | 37"_s);
        QCOMPARE(joined({1'024, 1'026}), u"1024 | 1026"_s);
        QCOMPARE(joined({1'048'576}), u"| 1048576"_s);
        QCOMPARE(joined({1'048'576, 1}), u"|"_s); // a flood
    }

    void spaces() {
        gateway::outbox outbox(1h);
        int written = 0;
        connect(&outbox, &gateway::outbox::due, this, [&written] { ++written; });
        outbox.push(gateway::verdict::sent);
        outbox.push(gateway::verdict::sent);
        QCOMPARE(written, 2);
        outbox.push(gateway::received_message{});
        outbox.push(gateway::verdict::sent); // must not overtake
        QCOMPARE(written, 2);
        for (int i = 3; i <= 4; ++i) {
            outbox.end_gap();
            QCOMPARE(written, i);
        }
    }
};

QTEST_GUILESS_MAIN(test_gateway_wire)
#include "test_gateway_wire.moc"
