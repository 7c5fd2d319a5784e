// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/frame_joiner.h"
#include "gateway/outbox.h"
#include "gateway/wire.h"
#include "hand_clock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class test_gateway_wire : public QObject {
    Q_OBJECT

private slots:
    // Of each frame the mobile, a bar, the text; nothing if it is refused.
    void reads_submissions() {
        QMap<QString, QString> read{
            {u"9123456789hi"_s, u"123456789|hi"_s}, // one digit
            {u"31234567890123456hello and good bye"_s, u"123|4567890123456hello and good bye"_s},
            {u"1123456789012"_s, u"23456789012|"_s}, // both fit, two win
            {u"13138-0013-8000您好"_s, u"138-0013-8000|您好"_s},
            {u"13138 0013 8000您好"_s, u"138 0013 8000|您好"_s},
            {u"510086查"_s, u"10086|查"_s},
            {u"14+8613912345678x"_s, u"+8613912345678|x"_s},
            {u"11139123456782020你好😀\n"_s, u"13912345678|2020你好😀\n"_s},
        };
        for (const QString& refused :
             {u""_s, u"1"_s, u"9123"_s, u"Hello"_s, u"5Helloworld"_s, u"1+text"_s, u"31+2text"_s,
              u"\uFEFF1113912345678Hello"_s, u"９123456789hi"_s, u"113"_s, u"212hi"_s,
              u"10---------12"_s, u"31"_s + QString(31, u'1')}) {
            read.insert(refused, {});
        }
        for (auto one = read.cbegin(); one != read.cend(); ++one) {
            const QByteArray bytes = gateway::encode_text(one.key());
            const auto message = gateway::parse_submission(bytes);
            QCOMPARE(message ? message->mobile + u'|' + message->text : QString(), *one);
            QVERIFY(!gateway::parse_submission(bytes + 'x')); // half a character too many
        }
    }

    void writes_frames() {
        QCOMPARE(gateway::encode(gateway::verdict::sent), QByteArray::fromHex("3100"));
        QCOMPARE(gateway::encode(gateway::verdict::failed), QByteArray::fromHex("3200"));
        const QDateTime time(QDate(2009, 3, 5), QTime(7, 8, 9));
        QCOMPARE(gateway::decode_text(gateway::encode({u"8610086"_s, time, u"好 0"_s})),
                 u"007861008612090305070809好 0"_s);
    }

    void joins() {
        hand_clock clock;
        gateway::frame_joiner joiner(clock);
        QStringList frames;
        connect(&joiner, &gateway::frame_joiner::frame_read, this,
                [&](const QByteArray& frame) { frames.append(QString::number(frame.size())); });
        connect(&joiner, &gateway::frame_joiner::frame_refused, this,
                [&] { frames.append(u"refused"_s); });
        // The frames' sizes over a link of 536; a bar stands for the pause behind the arrivals.
        const auto joined = [&](const QList<qsizetype>& arrivals) {
            frames.clear();
            for (const qsizetype size : arrivals) {
                joiner.add(QByteArray(size, 'x'), 536);
                clock.advance(gateway::frame_joiner::pause - 1ms);
            }
            frames.append(u"|"_s);
            clock.advance(1ms);
            return frames.join(u' ');
        };
        QCOMPARE(joined({36, 40}), u"36 40 |"_s);
        QCOMPARE(joined({17, 19, 4, 37}), u"36 4 | 37"_s);
        QCOMPARE(joined({534}), u"534 |"_s);
        QCOMPARE(joined({536, 290}), u"| 826"_s);
        QCOMPARE(joined({8'192}), u"| 8192"_s);
        QCOMPARE(joined({8'192, 2}), u"| refused"_s);
        QCOMPARE(joined({1'048'576}), u"| refused"_s);
        QCOMPARE(joined({1'048'576, 1}), u"|"_s); // a flood
    }

    void spaces_data() {
        QTest::addColumn<QString>("happens"); // f = frame, v = verdict, r = received, digits = ms
        QTest::addColumn<QString>("written");
        QTest::newRow("verdicts need no pause") << u"v v v"_s << u"0v 0v 0v"_s;
        QTest::newRow("after a verdict") << u"v r 5000"_s << u"0v 1000r"_s;
        QTest::newRow("after one another") << u"r r 5000"_s << u"0r 1000r"_s;
        QTest::newRow("a verdict waits") << u"r 10 f v 2000"_s << u"0r 1000v"_s;
        QTest::newRow("a client that answers at once")
            << u"f v 20 r f v 120 r f v 2000"_s << u"0v 20r 120v 140r 240v"_s;
        QTest::newRow("a client that takes its time")
            << u"f v 500 r f v 2000"_s << u"0v 500r 1500v"_s;
        QTest::newRow("a frame that crosses it") << u"r r f v 3000"_s << u"0r 1000v 2000r"_s;
        QTest::newRow("given up") << u"r f v 10 w f v 2000"_s << u"0r 1000v"_s;
        QTest::newRow("at the end") << u"r f v 10 h"_s << u"0r 10v"_s;
    }

    void spaces() {
        QFETCH(QString, happens);
        hand_clock clock;
        const qint64 begin = clock.steady();
        QStringList written;
        int waiting = 0;
        const auto note = [&](QChar what) {
            written.append(QString::number(clock.steady() - begin) + what);
        };
        std::unique_ptr<gateway::outbox> outbox;
        const auto bring = [&] {
            if (waiting > 0) {
                --waiting;
                outbox->bring();
            }
        };
        outbox = std::make_unique<gateway::outbox>(
            clock, [&](gateway::verdict) { note(u'v'); },
            [&] {
                note(u'r');
                bring();
            });
        for (const QString& step : happens.split(u' ')) {
            if (step == u"f") {
                outbox->heard();
            } else if (step == u"v") {
                outbox->answer(gateway::verdict::sent);
            } else if (step == u"r") {
                ++waiting;
                bring();
            } else if (step == u"w") {
                QVERIFY(outbox->withdraw_answer());
            } else if (step == u"h") {
                outbox->hurry();
            } else {
                clock.advance(std::chrono::milliseconds(step.toInt()));
            }
        }
        QTEST(written.join(u' '), "written");
    }
};

QTEST_GUILESS_MAIN(test_gateway_wire)
#include "test_gateway_wire.moc"
