// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/status_page.h"
#include "relay_stage.h"

#include <QJsonDocument>

/// How the gateway stands, on the page, for programs and for Prometheus.
class test_gateway_status : public relay_stage {
    Q_OBJECT

    // What the page's server answers.
    QByteArray get(const QByteArray& path, const QByteArray& host = "127.0.0.1:9101") {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, pages_.place().port);
        socket.write("GET " + path + " HTTP/1.1\r\nConnection: close\r\nHost: " + host +
                     "\r\n\r\n");
        [&] { QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState); }();
        return socket.readAll();
    }

    gateway::http_server pages_;
    std::optional<gateway::status_page> page_;

private slots:
    void initTestCase() {
        QCOMPARE(pages_.listen({QHostAddress(QHostAddress::LocalHost), 0}), QString());
    }

    void init() {
        begin();
        settings_.gateway.tell_failures = gateway::told_failures::none;
        start();
        page_.emplace(pages_, *store_, *network_, relay_->clients(), clock_, u"hand"_s);
    }
    void cleanup() { page_.reset(); }

    void tells_the_same_three_times() {
        for (const char* word : {"a>one", "accept", "a>two<b>", "refuse", "a>three", "unknown",
                                 "down", "a>four", "a-"}) {
            act(QString::fromLatin1(word));
        }
        QVERIFY(network_->sink->take(gateway::incoming_message{
            u"1"_s, u"10086"_s, QDateTime::currentDateTime(), u"余额"_s}));
        const QByteArray page = get("/");
        const QByteArray metrics = get("/metrics");
        const QByteArray answer = get("/status.json");
        const auto json = QJsonDocument::fromJson(answer.sliced(answer.indexOf("\r\n\r\n")));
        QString figures;
        for (const auto& [name, label] : {std::pair("clients", "连着的程序"),
                                          {"waiting", "等着发"},
                                          {"sent_today", "今天已发"},
                                          {"failed_today", "今天失败"},
                                          {"unknown", "不知下落"},
                                          {"held", "待取的来信"}}) {
            const QByteArray value =
                QByteArray::number(json[QLatin1StringView(name)].toInteger(-1));
            figures += QString::fromLatin1(value) + u' ';
            QVERIFY2(page.contains("<b>" + value + "</b>" + label), page);
            QVERIFY2(metrics.contains("\nsmsgateway_" + QByteArray(name) + ' ' + value + '\n'),
                     metrics);
        }
        QCOMPARE(figures, u"0 1 1 1 1 1 "_s);
        QCOMPARE(json[u"messages"][0][u"text"].toString(), u"four"_s);
        QVERIFY(page.contains("two&lt;b&gt;") && page.contains("失败<td><bdi>网络拒绝发送</bdi>"));
        QVERIFY(page.contains("余额") && page.contains("不通") && !page.contains("two<b>"));
    }

    void outlives_its_store() {
        store_->database().execute(u"ALTER TABLE received RENAME TO gone"_s);
        QVERIFY(get("/").contains("class=\"bad\">存短信的文件现在读不了"));
        QVERIFY(get("/metrics").contains("store_up 0"));
    }

    void answers_to_its_own_names_alone() {
        for (const char* own : {"localhost:9101", "192.168.1.2", "[::1]:9101", "[::1]", ""}) {
            QVERIFY2(get("/", own).startsWith("HTTP/1.1 200"), own);
        }
        for (const char* other : {"office.example:9101", "127.0.0.1.example", "[x]"}) {
            QVERIFY2(get("/metrics", other).startsWith("HTTP/1.1 403"), other);
        }
        QVERIFY(get("/", "localhost\r\nHost: x").startsWith("HTTP/1.1 400"));
        QVERIFY(get("/x").startsWith("HTTP/1.1 404"));
    }
};

QTEST_GUILESS_MAIN(test_gateway_status)
#include "test_gateway_status.moc"
