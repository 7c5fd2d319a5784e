// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_client.h"
#include "gateway/http_server.h"

#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using gateway::http_progress;

namespace {

const gateway::endpoint anywhere{QHostAddress(QHostAddress::LocalHost), 0};

// What a server says to these bytes before it ends the connection.
QByteArray told(const gateway::http_server& server, const QByteArray& bytes) {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.place().port);
    socket.write(bytes);
    [&] { QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState); }();
    return socket.readAll();
}

// A server that answers every first request of a connection and does something else with the next.
class odd_server : public QTcpServer {
public:
    explicit odd_server(QByteArray second) : second_(std::move(second)) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket, first = true]() mutable {
                socket->readAll();
                ++requests;
                socket->write(std::exchange(first, false)
                                  ? "HTTP/1.1 202 Yes\r\nContent-Length: 2\r\n\r\n0:"
                                  : second_);
                if (requests > 1 && second_ != "silence") {
                    socket->disconnectFromHost();
                }
            });
        });
    }

    int requests = 0;

private:
    QByteArray second_;
};

} // namespace

class test_gateway_http : public QObject {
    Q_OBJECT

private slots:
    void reads_requests() {
        // 0: whole, -1: not yet, else the refusal.
        const auto reads = [](const QByteArray& bytes, int refusal) {
            const auto reading = gateway::read_request(bytes, 300);
            QVERIFY2(reading.refusal == std::max(refusal, 0), bytes.left(60));
            QVERIFY(reading.progress == (refusal == 0    ? http_progress::whole
                                         : refusal == -1 ? http_progress::incomplete
                                                         : http_progress::broken));
            if (refusal == 0) {
                QCOMPARE(reading.size, bytes.size());
                QCOMPARE(gateway::only_value(reading.request.query, "d").value_or("你 x"), "你 x");
            }
        };
        reads("GET / HTTP/1.1\r\n\r\n", 0);
        reads("HEAD /a?b=c&d=%e4%BD%A0+x HTTP/1.0\r\nHost: x\r\nContent-Length: 0\r\n\r\n", 0);
        reads("GET / HTTP/1.1\r\nHost: x\r\n", -1);
        reads("GET / HTTP/2.0\r\n\r\n", 505);
        reads("GET / FTP/1.1\r\n\r\n", 400);
        reads("GET http://x/ HTTP/1.1\r\n\r\n", 400);
        reads("GET /a b HTTP/1.1\r\n\r\n", 400);
        reads("GET /?a=%4 HTTP/1.1\r\n\r\n", 400);
        reads("GET /?a=%+4 HTTP/1.1\r\n\r\n", 400);
        reads("GET / HTTP/1.1\r\nno colon\r\n\r\n", 400);
        reads("GET / HTTP/1.1\r\nHost : x\r\n\r\n", 400);
        reads("GET / HTTP/1.1\r\nA: b\r\n folded\r\n\r\n", 400);
        reads(QByteArray("GET / HTTP/1.1\r\nA: \0\r\n\r\n", 24), 400);
        reads("POST / HTTP/1.1\r\n\r\n", 405);
        reads("GET / HTTP/1.1\r\nContent-Length: 1\r\n\r\n", 413);
        reads("GET / HTTP/1.1\r\nContent-Length: 0\r\nContent-Length: 0\r\n\r\n", 413);
        reads("GET / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n", 413);
        reads("GET /" + QByteArray(300, 'x'), 414);
        reads("GET /" + QByteArray(300, 'x') + " HTTP/1.1\r\n\r\n", 414);
    }

    void reads_answers() {
        // What an answer means once it ended: status and body.
        const auto reads = [](const QByteArray& bytes, const QString& meaning) {
            for (qsizetype size = 0; size < bytes.size(); ++size) { // never whole too early
                QVERIFY(gateway::read_answer(bytes.first(size), false).progress !=
                        http_progress::whole);
            }
            const auto reading = gateway::read_answer(bytes, true);
            QCOMPARE(reading.progress == http_progress::whole
                         ? u"%1 %2"_s.arg(reading.status).arg(QString::fromUtf8(reading.body))
                         : u"broken"_s,
                     meaning);
        };
        reads("HTTP/1.0 202 A\r\nContent-Length: 2\r\nConnection: Keep-Alive\r\n\r\n0:",
              u"202 0:"_s);
        reads("HTTP/1.1 503 A\r\n\r\nuntil the end", u"503 until the end"_s);
        reads("HTTP/1.1 202 A\r\nContent-Length: 3\r\n\r\n0:", u"broken"_s);
        reads("HTTP/1.1 202 A\r\nContent-Length: -2\r\n\r\n0:", u"broken"_s);
        reads("HTTP/1.1 2x2 A\r\n\r\n", u"broken"_s);
        reads("SSH-2.0-OpenSSH\r\n\r\n", u"broken"_s);
        reads("", u"broken"_s);
    }

    void serves() {
        gateway::http_server server;
        QCOMPARE(server.listen(anywhere), QString());
        server.handle("/", [](const auto& request) {
            return gateway::http_response{200, "page " + request.path};
        });
        server.handle("/calls/", [](const auto&) { return gateway::http_response{503, "later"}; });
        const QByteArray both = told(server, "GET /a HTTP/1.1\r\n\r\nHEAD /calls/b HTTP/1.0\r\n\r\n"
                                             "GET /never HTTP/1.0\r\n\r\n");
        QVERIFY2(both.contains("page /a") && both.contains("503") && !both.contains("later") &&
                     !both.contains("never"),
                 both);
        QVERIFY(told(server, "GET /" + QByteArray(10'000'000, 'x')).startsWith("HTTP/1.1 414"));
        server.handle("/", {});
        QVERIFY(told(server, "GET /a HTTP/1.0\r\n\r\n").startsWith("HTTP/1.1 404"));
    }

    void ends_the_most_silent_of_many() {
        gateway::http_server server;
        server.handle("/", [](const auto&) { return gateway::http_response(); });
        QCOMPARE(server.listen(anywhere), QString());
        std::vector<std::unique_ptr<QTcpSocket>> clients;
        for (qsizetype i = 0; i < gateway::http_server::max_links; ++i) {
            clients.push_back(std::make_unique<QTcpSocket>());
            clients.back()->connectToHost(QHostAddress::LocalHost, server.place().port);
            clients.back()->write("GET /");
            QTRY_COMPARE(clients.back()->bytesToWrite(), 0);
        }
        clients[0]->write(" HTTP/1.1\r\n\r\n");
        QTRY_VERIFY(clients[0]->bytesAvailable() > 0);
        QVERIFY(told(server, "GET / HTTP/1.0\r\n\r\n").startsWith("HTTP/1.1 200"));
        QTRY_COMPARE(clients[1]->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(clients[0]->state(), QAbstractSocket::ConnectedState);
    }

    void never_sends_twice_data() {
        QTest::addColumn<QByteArray>("second");
        QTest::newRow("ends") << QByteArray();
        QTest::newRow("ends in the answer") << QByteArray("HTTP/1.1 202");
        QTest::newRow("rubbish") << QByteArray("rubbish\r\n\r\n");
        QTest::newRow("silence") << QByteArray("silence");
    }

    void never_sends_twice() {
        QFETCH(QByteArray, second);
        odd_server server(second);
        QUrl url(u"http://127.0.0.1/"_s);
        url.setPort(server.serverPort());
        gateway::http_client client(url, 300ms);
        QList<gateway::http_answer> answers;
        for (int sent = 1; sent <= 2; ++sent) {
            client.send("GET / HTTP/1.0\r\n\r\n", [&](const auto& one) { answers.append(one); });
            QCOMPARE(answers.size(), sent - 1); // never from inside send()
            QTRY_COMPARE(answers.size(), sent);
        }
        QCOMPARE(answers[0].status, 202);
        QCOMPARE(answers[1].status, 0);
        QVERIFY(answers[1].was_written && !answers[1].fault.isEmpty());
        QCOMPARE(server.requests, 2);

        server.close();
        client.send("GET / HTTP/1.0\r\n\r\n", [&](const auto& one) { answers.append(one); });
        QTRY_COMPARE(answers.size(), 3);
        QVERIFY(answers[2].status == 0 && !answers[2].was_written);
    }
};

QTEST_GUILESS_MAIN(test_gateway_http)
#include "test_gateway_http.moc"
