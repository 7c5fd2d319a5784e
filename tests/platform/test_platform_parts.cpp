// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/conversion.h"
#include "platform/display_format.h"
#include "platform/server_probe.h"
#include "platform/winsock.h"
#include "tests/support/error_of.h"

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTest>

using namespace Qt::StringLiterals;

/// The small parts: conversions, display formats, the socket's refusals.
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
        for (const QString& text :
             {u"2023/02/29"_s, u"2024/01-31"_s, u"2024/01/31 24:00:00"_s, u"24/01/31"_s,
              u"2024/01/31 08:00:00x"_s, u"2024/01/31 08:00:"_s, u"2024/01/31 T"_s,
              u"2024/01/31\t08:00"_s, u""_s}) {
            QVERIFY2(error_of([&] { return to_datetime(text); }), qPrintable(text));
        }
    }

    void shows_values() {
        const auto shown = [](const QString& format, const QVariant& value) {
            return display_format(format).apply(value);
        };
        QCOMPARE(shown(u"yyyy-mm-dd hh:mm:ss"_s, u"2024/1/5 17:08:09"_s), u"2024-01-05 17:08:09"_s);
        QCOMPARE(shown(u"##,###.00"_s, -1234567.891), u"-1,234,567.89"_s);
        QCOMPARE(shown(u"###.00"_s, -0.001) + shown(u"###.00"_s, u"n/a"_s), u".00n/a"_s);
        QCOMPARE(shown(u"\\ ;\\√"_s, -1) + shown(u"\\ ;\\√"_s, 0), u"√ "_s);
    }

    void a_socket_refuses_what_is_no_port() {
        Winsock socket;
        socket.RemoteHost = u"127.0.0.1"_s;
        for (const int port : {0, -1, 65536 + 1}) {
            socket.RemotePort = port;
            QVERIFY_THROWS_EXCEPTION(Winsock::Error, socket.Connect());
        }
    }

    void a_proxy_is_passed_by() {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, u"127.0.0.1"_s, 1});
        Winsock socket;
        socket.RemoteHost = u"0.0.0.0"_s; // this machine, yet no name that every proxy leaves alone
        socket.RemotePort = server.serverPort();
        socket.Connect();
        QTRY_COMPARE(socket.State(), Winsock::StateEnum::connected);
        probe_server(u"0.0.0.0,%1"_s.arg(server.serverPort()));
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }
};

QTEST_GUILESS_MAIN(test_platform_parts)
#include "test_platform_parts.moc"
