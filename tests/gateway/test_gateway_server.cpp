// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/server.h"
#include "test_client.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A network whose outcomes the test gives by hand.
class hand_backend final : public gateway::instant_backend {
public:
    void submit(const gateway::submission&, const outcome_handler& done) override {
        outcomes.append(done);
    }
    void set_receive_handler(const receive_handler& handler) override { receive = handler; }
    QString command(const QString& line) override { return line; }

    QList<outcome_handler> outcomes;
    receive_handler receive;
};

} // namespace

class test_gateway_server : public QObject {
    Q_OBJECT

private:
    // A client whose first message has come, so that the server knows the client.
    std::unique_ptr<test_client> connected_client() {
        auto client = std::make_unique<test_client>(server_->port());
        const auto known = network_->outcomes.size();
        client->send(message_);
        [&] { QTRY_COMPARE(network_->outcomes.size(), known + 1); }();
        return client;
    }

    const QString message_ = u"1113912345678Hello"_s;
    gateway::journal journal_;
    std::unique_ptr<hand_backend> network_;
    std::unique_ptr<gateway::server> server_;

private slots:
    void init() {
        server_.reset(); // before the network it uses
        network_ = std::make_unique<hand_backend>();
        server_ = std::make_unique<gateway::server>(*network_, journal_);
        QCOMPARE(server_->listen(QHostAddress::LocalHost, 0), QString());
    }

    void answers_the_right_client() {
        const auto first = connected_client();
        auto leaving = connected_client();
        leaving->send(message_ + QString(1'000, u'x'));
        leaving->disconnectFromHost();
        // The end of the connection ends the long frame; its outcome finds nobody.
        QTRY_COMPARE(network_->outcomes.size(), 3);
        leaving.reset();
        const auto last = connected_client();
        network_->outcomes[3](gateway::verdict::failed);
        for (int i = 0; i < 3; ++i) {
            network_->outcomes[i](gateway::verdict::sent);
        }
        QTRY_COMPARE(last->answers(), u"2"_s);
        QTRY_COMPARE(first->answers(), u"1"_s);
    }

    void delivers_to_first_client() {
        const QDateTime time(QDate(2024, 2, 3), QTime(4, 5, 6));
        const QString frame = u"004861012240203040506kept"_s;
        for (int i = 0; i < 1'000; ++i) {
            network_->receive({u"8610"_s, time, u"kept"_s});
        }
        auto first = connected_client();
        const auto second = connected_client();
        QTRY_VERIFY(first->answers().startsWith(frame + frame + frame));
        QCOMPARE(second->answers(), QString());
        first.reset(); // leaves while most of them wait
        QTRY_VERIFY(second->answers().startsWith(frame + frame));
    }

    void drops_flooding_clients() {
        const auto babbler = connected_client();
        const auto pusher = connected_client();
        network_->outcomes[1](gateway::verdict::sent); // only what is unsettled counts
        for (int i = 0; i < gateway::client_link::max_unsettled; ++i) {
            pusher->send(message_);
            QTRY_COMPARE(network_->outcomes.size(), i + 3);
        }
        pusher->send(message_);
        QTRY_COMPARE(pusher->state(), QAbstractSocket::UnconnectedState);
        babbler->write(QByteArray(10'000'000, 'x'));
        QTRY_COMPARE(babbler->state(), QAbstractSocket::UnconnectedState);
    }
};

QTEST_GUILESS_MAIN(test_gateway_server)
#include "test_gateway_server.moc"
