// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/frame_joiner.h"
#include "gateway/outbox.h"
#include "gateway/wire.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using size_list = QList<qsizetype>;

class test_gateway_wire : public QObject {
    Q_OBJECT

private slots:
    void reads_submission_data() {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("read"); // the mobile, a bar, the text; empty if refused
        const auto row = [](const char* name, const QString& frame, const QString& read = {}) {
            QTest::newRow(name) << frame << read;
        };
        row("two digits", u"1113912345678Hello"_s, u"13912345678|Hello"_s);
        row("one digit", u"9123456789hi"_s, u"123456789|hi"_s);
        row("two digits not a number", u"31234567890123456hello and good bye"_s,
            u"123|4567890123456hello and good bye"_s);
        row("both fit, two win", u"1123456789012"_s, u"23456789012|"_s);
        row("plus", u"14+8613912345678x"_s, u"+8613912345678|x"_s);
        row("text of digits", u"11139123456782020"_s, u"13912345678|2020"_s);
        row("text of all kinds", u"1113912345678你好😀\n"_s, u"13912345678|你好😀\n"_s);
        row("empty", {});
        row("length only", u"1"_s);
        row("too short", u"9123"_s);
        row("no length", u"Hello"_s);
        row("no mobile", u"0Hello"_s);
        row("mobile of letters", u"5Helloworld"_s);
        row("lone plus", u"1+text"_s);
        row("plus inside", u"31+2text"_s);
        row("byte order mark", u"\uFEFF1113912345678Hello"_s);
        row("digits of another script", u"９123456789hi"_s);
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
        const auto received = [&](const QString& sender) {
            return gateway::decode_text(gateway::encode({sender, time, u"好 0"_s}));
        };
        QCOMPARE(received(u"8613912345678"_s), u"013861391234567812090305070809好 0"_s);
        QCOMPARE(received(u"8610086"_s), u"007861008612090305070809好 0"_s);
    }

    void joins_data() {
        QTest::addColumn<size_list>("arrivals");
        QTest::addColumn<size_list>("at_once");
        QTest::addColumn<size_list>("after_pause");
        QTest::newRow("even") << size_list{36, 40} << size_list{36, 40} << size_list{36, 40};
        QTest::newRow("odd, rest") << size_list{17, 19, 4} << size_list{36, 4} << size_list{36, 4};
        QTest::newRow("odd") << size_list{37} << size_list{} << size_list{37};
        QTest::newRow("certain") << size_list{1'024} << size_list{1'024} << size_list{1'024};
        QTest::newRow("long") << size_list{1'026} << size_list{} << size_list{1'026};
        QTest::newRow("parts") << size_list{1'460, 1'460, 81, 1} << size_list{} << size_list{3'002};
        QTest::newRow("grows long") << size_list{1'023, 3} << size_list{} << size_list{1'026};
        QTest::newRow("limit") << size_list{1'048'576} << size_list{} << size_list{1'048'576};
        QTest::newRow("flood") << size_list{1'048'576, 1} << size_list{} << size_list{};
    }

    void joins() {
        QFETCH(size_list, arrivals);
        QFETCH(size_list, at_once);
        QFETCH(size_list, after_pause);
        gateway::frame_joiner joiner(1h);
        size_list frames;
        connect(&joiner, &gateway::frame_joiner::frame_read, this,
                [&](const QByteArray& frame) { frames.append(frame.size()); });
        for (const qsizetype size : std::as_const(arrivals)) {
            joiner.add(QByteArray(size, 'x'));
        }
        QCOMPARE(frames, at_once);
        joiner.finish();
        QCOMPARE(frames, after_pause);
    }

    // In the scripts v is a verdict, r a received message, a dot the end of a gap.
    void spaces_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("written");
        QTest::newRow("verdicts at once") << u"vvv"_s << u"vvv"_s;
        QTest::newRow("received after verdict") << u"vr"_s << u"v"_s;
        QTest::newRow("verdicts after received") << u"rvv"_s << u"r"_s;
        QTest::newRow("received one by one") << u"rrr."_s << u"rr"_s;
        QTest::newRow("no overtaking") << u"vrv."_s << u"vr"_s;
        QTest::newRow("all in the end") << u"rvvrv..."_s << u"rvvrv"_s;
    }

    void spaces() {
        QFETCH(QString, script);
        QFETCH(QString, written);
        gateway::outbox outbox(1h);
        QString seen;
        connect(&outbox, &gateway::outbox::due, this, [&](const gateway::outbox::frame& next) {
            seen += std::holds_alternative<gateway::verdict>(next) ? u'v' : u'r';
        });
        for (const QChar step : std::as_const(script)) {
            if (step == u'v') {
                outbox.push(gateway::verdict::sent);
            } else if (step == u'r') {
                outbox.push(gateway::received_message{});
            } else {
                outbox.end_gap();
            }
        }
        QCOMPARE(seen, written);
    }

    void keeps_time() {
        gateway::frame_joiner joiner;
        const QSignalSpy frames(&joiner, &gateway::frame_joiner::frame_read);
        joiner.add("odd");
        gateway::outbox outbox;
        QElapsedTimer clock;
        clock.start();
        QList<qint64> times;
        connect(&outbox, &gateway::outbox::due, this, [&] { times.append(clock.elapsed()); });
        outbox.push(gateway::verdict::sent);
        outbox.push(gateway::received_message{});
        outbox.push(gateway::verdict::sent);
        QTRY_COMPARE(times.size(), 3);
        QTRY_COMPARE(frames.count(), 1);
        // A lower bound, less the rounding: a busy machine only makes the gaps longer.
        QVERIFY(times[1] - times[0] >= 29);
        QVERIFY(times[2] - times[1] >= 29);
    }
};

QTEST_GUILESS_MAIN(test_gateway_wire)
#include "test_gateway_wire.moc"
