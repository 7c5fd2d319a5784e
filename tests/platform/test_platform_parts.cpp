// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/conversion.h"
#include "platform/display_format.h"
#include "platform/winsock.h"
#include "tests/support/error_of.h"

#include <QTcpServer>
#include <QTest>

using namespace Qt::StringLiterals;
using State = Winsock::StateEnum;

/// The small parts: conversions, display formats, the socket against a real server, the timer.
class test_platform_parts : public QObject {
    Q_OBJECT

private slots:
    void converts_only_what_fits() {
        QCOMPARE(to_int16(u" +32767 "_s) - to_int16(u"-32768"_s), 65535);
        QCOMPARE(to_int16(QVariant(32767LL)) - to_int16(QVariant(-32768LL)), 65535);
        for (const QVariant& value :
             QVariantList{u"32768"_s, u"-32769"_s, u"7a"_s, u"1,000"_s, u"1e3"_s, u"１"_s, u""_s,
                          2.5, 65536LL, QVariant()}) {
            QVERIFY2(error_of([&] { return to_int16(value); }), qPrintable(value.toString()));
        }
        QCOMPARE(to_datetime(u"2024/2/29 7:8"_s), to_datetime(u" 2024-02-29 07:08:00 "_s));
        for (const QString& text : {u"2023/02/29"_s, u"2024/01-31"_s, u"2024/01/31 24:00:00"_s,
                                    u"24/01/31"_s, u"2024/01/31 08:00:00x"_s, u"2024/01/31 08:00:"_s,
                                    u"2024/01/31 T"_s, u"2024/01/31\t08:00"_s, u""_s}) {
            QVERIFY2(error_of([&] { return to_datetime(text); }), qPrintable(text));
        }
    }

    void shows_values() {
        const auto shown = [](const QString& format, const QVariant& value) {
            return DisplayFormat(format).apply(value);
        };
        QCOMPARE(shown(u"yyyy-mm-dd hh:mm:ss"_s, u"2024/1/5 17:08:09"_s), u"2024-01-05 17:08:09"_s);
        QCOMPARE(shown(u"yyyy-mm-dd"_s, u"下周"_s), u"下周"_s);
        QCOMPARE(shown(u"##,###.00"_s, -1234567.891), u"-1,234,567.89"_s);
        QCOMPARE(shown(u"##,###.00"_s, -0.001), u".00"_s);
        QCOMPARE(shown(u"###.00"_s, u"1234"_s) + shown(u"###.00"_s, u"n/a"_s), u"1234.00n/a"_s);
        QCOMPARE(shown(u"0.00"_s, u"inf"_s), u"inf"_s);
        QCOMPARE(shown(u"@"_s, u"0012"_s), u"0012"_s);
        QCOMPARE(shown(u"\\ ;\\√"_s, -1) + shown(u"\\ ;\\√"_s, 0), u"√ "_s);
        QCOMPARE(shown(u"#.#\\"_s, 5) + shown(u";\\"_s, u"x"_s) + shown(u"0"_s, {}), u"5.x"_s);
    }

    void a_socket_follows_its_connection() {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        Winsock socket;
        socket.RemoteHost = u"127.0.0.1"_s;
        for (const int port : {0, -1, 65536 + server.serverPort()}) {
            socket.RemotePort = port;
            QVERIFY_THROWS_EXCEPTION(Winsock::Error, socket.Connect());
            QCOMPARE(socket.State(), State::closed);
        }
        socket.RemotePort = server.serverPort();
        socket.Connect();
        QVERIFY_THROWS_EXCEPTION(Winsock::Error, socket.SendData("x"));
        QTRY_COMPARE(socket.State(), State::connected);
        QTRY_VERIFY(server.hasPendingConnections());
        QTcpSocket* peer = server.nextPendingConnection();
        socket.SendData("out");
        QTRY_COMPARE(peer->peek(9), "out");
        peer->write("last words");
        peer->close();
        QTRY_COMPARE(socket.State(), State::closing);
        QCOMPARE(socket.GetData(), "last words");
        QVERIFY_THROWS_EXCEPTION(Winsock::Error, socket.SendData("x"));
        QVERIFY_THROWS_EXCEPTION(Winsock::Error, socket.Connect()); // not closed yet
        server.close();
        socket.Close();
        socket.Connect();
        QTRY_COMPARE(socket.State(), State::error); // refused
    }
};

QTEST_GUILESS_MAIN(test_platform_parts)
#include "test_platform_parts.moc"
