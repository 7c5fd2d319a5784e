// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/relay.h"
#include "hand_backend.h"
#include "hand_clock.h"
#include "test_client.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The relay with real sockets and a real store; its time and its network are played by hand.
class relay_stage : public QObject {
protected:
    void begin() {
        relay_.reset();
        clients_.clear();
        settings_ = {};
        folder_ = std::make_unique<QTemporaryDir>();
        start();
    }

    // A killed gateway is one that is not ended: the relay goes, the store stays as it is.
    void start() {
        relay_.reset();
        store_.reset();
        network_ = std::make_unique<hand_backend>();
        store_ = std::make_unique<gateway::store>(folder_->path(), gateway::store::user::daemon);
        relay_ = std::make_unique<gateway::relay>(*store_, *network_, clock_, settings_);
        QCOMPARE(relay_->clients().listen({QHostAddress(QHostAddress::LocalHost), 0}), QString());
        relay_->start();
        clock_.advance(0ms);
    }

    // The rows that a statement gives: the columns of each with colons between, blanks between
    // rows.
    QString rows(const QString& sql) { return store_->database().column(sql).join(u' '); }

    test_client& client(const QString& name) {
        auto& found = clients_[name];
        if (!found) {
            found = std::make_unique<test_client>(relay_->clients().place().port);
            [&] { QTRY_COMPARE(found->state(), QAbstractSocket::ConnectedState); }();
        }
        return *found;
    }

    int answer_count(const QString& name) {
        return static_cast<int>(client(name).answers().count(QRegularExpression(u"[12]"_s)));
    }

    // What a play is made of, one word each.
    void act(const QString& word) {
        const QString name = word.left(1);
        const QString rest = word.mid(2);
        if (word == u"restart") {
            clients_.clear();
            start();
        } else if (word.startsWith(u'+')) { // time passes
            clock_.advance(std::chrono::seconds(word.sliced(1).toInt()));
        } else if (word == u"still") { // the process stands still
            clock_.stand_still(6s);
        } else if (word == u"sleep") { // the machine sleeps
            clock_.sleep(6s);
        } else if (word.at(1) == u'>') { // a client sends a message and gets its answer
            const int before = answer_count(name);
            client(name).send(u"1113912345678"_s + rest);
            QTRY_COMPARE(answer_count(name), before + 1);
        } else if (word.at(1) == u'-') { // a client goes, before it reads what is coming
            client(name).abort();
            clients_.erase(name);
            QTRY_VERIFY(relay_->clients().findChildren<gateway::client_link*>().isEmpty());
        } else {
            say_of_network(word);
        }
    }

    void say_of_network(const QString& word) {
        static const std::map<QString, gateway::handover_result> results{
            {u"accept"_s, gateway::handover_result::accepted},
            {u"refuse"_s, gateway::handover_result::refused},
            {u"notnow"_s, gateway::handover_result::not_now},
            {u"unknown"_s, gateway::handover_result::unknown}};
        static const std::map<QString, gateway::fate> fates{
            {u"delivered"_s, gateway::fate::delivered},
            {u"undelivered"_s, gateway::fate::undelivered}};
        clock_.advance(100ms); // what is due is handed over
        if (fates.contains(word)) {
            const qint64 first = rows(u"SELECT min(id) FROM message"_s).toLongLong();
            QVERIFY(network_->sink->take(gateway::report{.id = first, .what = fates.at(word)}));
        } else if (word == u"up" || word == u"down") {
            network_->up = word == u"up";
            network_->sink->health_changed();
        } else {
            const bool asked = !network_->asked.isEmpty();
            QVERIFY(asked || !network_->handed.isEmpty());
            const auto id = asked ? network_->asked.takeFirst() : network_->handed.takeFirst().id;
            network_->sink->settle(id, {.result = results.at(word)});
        }
        clock_.advance(100ms);
    }

    std::unique_ptr<QTemporaryDir> folder_;
    hand_clock clock_;
    gateway::settings settings_;
    std::unique_ptr<hand_backend> network_;
    std::unique_ptr<gateway::store> store_;
    std::unique_ptr<gateway::relay> relay_;
    std::map<QString, std::unique_ptr<test_client>> clients_;
};
