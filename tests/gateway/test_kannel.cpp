// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_backend.h"
#include "hand_sink.h"
#include "kannel_stage.h"
#include "road.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using gateway::failure_cause;
using gateway::fate;
using gateway::handover_result;

namespace {

// Kannel takes seconds for some of its steps, more when the machine is busy.
constexpr int long_wait = 30'000;
const QString secret = u"0123456789abcdef"_s;

} // namespace

class test_kannel : public QObject {
    Q_OBJECT

private:
    // The settings that fit the stage's Kannel; `smsc` is the centre to send through.
    [[nodiscard]] gateway::kannel_settings fitting(const QString& smsc) const {
        gateway::kannel_settings wanted;
        wanted.sendsms.setPort(stage_->sendsms_port);
        wanted.status.setPort(stage_->admin_port);
        wanted.username = u"smsgateway"_s;
        wanted.password = u"p a&ss=1%"_s;
        wanted.status_password = u"CHANGE-status"_s;
        wanted.from = u"10690"_s;
        wanted.smsc = smsc;
        return wanted;
    }

    void make_engine(const QString& smsc) {
        road_.reset();
        engine_ = std::make_unique<gateway::kannel_backend>(fitting(smsc), secret, &server_);
    }

    void start(const QString& smsc) {
        make_engine(smsc);
        sink_ = std::make_unique<hand_sink>();
        engine_->start(*sink_);
        QTRY_VERIFY_WITH_TIMEOUT(engine_->health().up, long_wait);
    }

    // Hands a message over under a number of its own, and gives what came of it.
    gateway::handover hand_over(const QString& number, const QString& text) {
        engine_->hand_over({++last_id_, number, text});
        [&] { QTRY_VERIFY_WITH_TIMEOUT(sink_->settled.contains(last_id_), long_wait); }();
        return sink_->settled.value(last_id_);
    }

    [[nodiscard]] QString fault_of(const gateway::kannel_settings& wanted) const {
        gateway::kannel_backend engine(wanted, secret, nullptr);
        std::optional<QString> told;
        engine.check([&told](const QString& fault) { told = fault; });
        [&] { QTRY_VERIFY_WITH_TIMEOUT(told.has_value(), long_wait); }();
        return told.value_or(u"nothing was told"_s);
    }

    [[nodiscard]] QString calls() const {
        return u"http://127.0.0.1:%1/kannel/%2/"_s.arg(server_.place().port).arg(secret);
    }

    gateway::http_server server_;
    std::unique_ptr<kannel_stage> stage_;
    std::unique_ptr<hand_sink> sink_;
    std::unique_ptr<gateway::kannel_backend> engine_;
    std::unique_ptr<road> road_;
    gateway::message_id last_id_ = 0;

private slots:
    void initTestCase() {
        QCOMPARE(server_.listen({QHostAddress(QHostAddress::LocalHost), 0}), QString());
        stage_ = std::make_unique<kannel_stage>(calls());
        stage_->start_bearerbox();
        QVERIFY(fault_of(fitting({})).startsWith(u"kannel/sendsms: Connection refused"));
        stage_->start_smsbox();
        stage_->start_fakesmsc();
    }

    void cleanupTestCase() {
        road_.reset();
        engine_.reset();
        stage_.reset();
    }

    void every_sample_is_read() {
        for (const QString& network : {u"smpp"_s, u"provider"_s, u"modem"_s}) {
            kannel_stage(calls(), network).start_bearerbox();
        }
    }

    void checks_the_connection() {
        QCOMPARE(fault_of(fitting({})), QString());
        gateway::kannel_settings wrong = fitting({});
        wrong.status_password = u"x"_s;
        QCOMPARE(fault_of(wrong), u"kannel/status: Kannel does not know this status password"_s);
        wrong.password = u"x"_s;
        QCOMPARE(fault_of(wrong),
                 u"kannel/sendsms: Kannel does not know this user name and password"_s);
        wrong.sendsms.setPort(stage_->admin_port);
        QVERIFY(fault_of(wrong).contains(u"this is no sendsms of Kannel"));
    }

    void texts_arrive_whole_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("parts");
        const auto row = [](const char* name, const QString& text, int parts) {
            QTest::newRow(name) << text << parts;
        };
        for (const auto& [length, parts] : {std::pair(70, 1), {71, 2}, {134, 2}, {135, 3}}) {
            QString text;
            for (int i = 0; i < length; ++i) {
                text += QChar(0x4e00 + i);
            }
            row(QByteArray::number(length).constData(), text, parts);
        }
        row("emoji", u"您好😀👍🏽’"_s, 1);
        // A blank keeps the halves of the emoji together.
        row("emoji on the border", QString(66, u'好') + u" 😀祝您生日快乐"_s, 2);
        row("7 bits", u"  a ^{}\\[~]|€ à@£  "_s, 1);
        row("7 bits full", QString(159, u'a') + u'Ω', 1);
        row("longest", QString(4'083, u'店'), 61);
    }

    void texts_arrive_whole() {
        QFETCH(QString, text);
        QFETCH(int, parts);
        if (road_ == nullptr) {
            make_engine(u"fake"_s);
            road_ = std::make_unique<road>(*engine_);
        }
        const QString mobile = u"139%1"_s.arg(++last_id_, 8, 10, QChar(u'0'));
        const QString id = road_->send(mobile, QString(text).replace(u"好 😀"_s, u"好😀"_s));
        const QString number = u"+86"_s + mobile;
        QTRY_COMPARE_WITH_TIMEOUT(stage_->at_fake(number).size(), parts, long_wait);
        QCOMPARE(stage_->at_fake(number).join(QString()), text);
        const QString fates =
            u"SELECT fate FROM event WHERE message = %1 AND fate = 'delivered'"_s.arg(id);
        QTRY_COMPARE_WITH_TIMEOUT(road_->column(fates).size(), 1, long_wait);
        QCOMPARE(road_->column(u"SELECT state FROM message WHERE id = "_s + id),
                 QStringList(u"delivered"_s));
    }

    void reports_are_told_until_they_are_kept() {
        start(u"network"_s);
        const QString text = u"您好 ^€\n😀"_s.repeated(30);
        QVERIFY(hand_over(u"+8613912345670"_s, text).result == handover_result::accepted);
        QTRY_VERIFY_WITH_TIMEOUT(sink_->has_report(last_id_, fate::accepted), long_wait);
        QCOMPARE(sink_->reports.last().ref, u"ref-1"_s);
        QCOMPARE(stage_->at_provider, QStringList(u"+8613912345670 "_s + text));
        sink_->reports.clear();
        sink_->keeps = false;
        QVERIFY(hand_over(u"+8613912345671"_s, u"您好"_s).result == handover_result::accepted);
        QTRY_VERIFY_WITH_TIMEOUT(sink_->turned_away > 1, long_wait);
        sink_->keeps = true;
        QTRY_VERIFY_WITH_TIMEOUT(sink_->has_report(last_id_, fate::refused), long_wait);
        QCOMPARE(sink_->reports.first().reason, u"NACK/1 bad number"_s);
        QVERIFY(sink_->reports.first().cause == failure_cause::bad_number);
        QVERIFY(hand_over(u"+8613912345679"_s, u"您好"_s).result == handover_result::accepted);
        QTRY_VERIFY_WITH_TIMEOUT(sink_->has_report(last_id_, fate::refused), long_wait);
        QVERIFY(sink_->reports.last().cause == failure_cause::expired);
    }

    void received_messages_come_whole() {
        make_engine(u"network"_s);
        road_ = std::make_unique<road>(*engine_);
        const QString first(67, u'好');
        const QString second = u"it's  two\n😀"_s;
        stage_->receive(u"+8613812345678"_s, second, QByteArray::fromHex("050003070202"));
        stage_->receive(u"+8613812345678"_s, first, QByteArray::fromHex("050003070201"));
        const QString whole = first + u"it’s  two\n😀"_s;
        QTRY_VERIFY_WITH_TIMEOUT(road_->client->answers().endsWith(whole), long_wait);
        QVERIFY(road_->client->answers().startsWith(u"0138613812345678"));
        stage_->receive(u"+8613812345678"_s, u"same"_s);
        stage_->receive(u"+8613812345678"_s, u"same"_s);
        const QString same = u"SELECT DISTINCT key FROM received WHERE text = 'same'"_s;
        QTRY_COMPARE_WITH_TIMEOUT(road_->column(same).size(), 2, long_wait);
    }

    void waits_for_a_kannel_that_is_down() {
        start(u"network"_s);
        stage_->kill_smsbox();
        const auto outcome = hand_over(u"+8613912345670"_s, u"您好"_s);
        QVERIFY(outcome.result == handover_result::not_now);
        QVERIFY(!engine_->health().up && sink_->changes > 0);
        stage_->start_smsbox();
        QTRY_VERIFY_WITH_TIMEOUT(engine_->health().up, long_wait);
        QVERIFY(hand_over(u"+8613912345670"_s, u"您好"_s).result == handover_result::accepted);
        engine_->ask(last_id_);
        QTRY_VERIFY(sink_->settled[last_id_].result == handover_result::unknown);
    }
};

QTEST_GUILESS_MAIN(test_kannel)
#include "test_kannel.moc"
