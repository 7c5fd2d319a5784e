// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/gateway/gammu_stage.h"
#include "tests/gateway/road.h"

using namespace Qt::StringLiterals;

/// From a client to the real gammu-smsd with its dummy phone, and back.
class test_gateway_gammu_smsd : public QObject {
    Q_OBJECT

    std::unique_ptr<gammu_stage> stage_;
    std::unique_ptr<gateway::gammu_backend> engine_;
    std::unique_ptr<road> road_;

private slots:
    void init() {
        stage_ = std::make_unique<gammu_stage>();
        stage_->start_daemon();
        engine_ = std::make_unique<gateway::gammu_backend>(stage_->settings);
        road_ = std::make_unique<road>(*engine_);
        QTRY_VERIFY(engine_->health().up);
    }
    void cleanup() {
        road_.reset();
        engine_.reset(); // before it can tell what is gone
    }

    void sends() {
        const QList<std::pair<QString, QStringList>> messages{
            {QString(70, u'好'), {QString(70, u'好')}},
            {QString(71, u'好'), {QString(67, u'好'), QString(4, u'好')}},
            {QString(134, u'好'), {QString(67, u'好'), QString(67, u'好')}},
            {QString(135, u'好'), {QString(67, u'好'), QString(67, u'好'), u"好"_s}},
            {QString(66, u'好') + u"😀祝您生日快乐"_s, {QString(66, u'好'), u"😀祝您生日快乐"_s}},
            {u"it's ^{}\\[~]|€ \"%s\""_s, {u"it's ^{}\\[~]|€ \"%s\""_s}},
        };
        QStringList ids;
        for (const auto& [text, parts] : messages) {
            ids.append(road_->send(u"13912345678"_s, text));
        }
        QTRY_COMPARE_WITH_TIMEOUT(road_->column(u"SELECT DISTINCT state FROM message"_s),
                                  QStringList(u"accepted"_s), 60'000);
        for (qsizetype i = 0; i < messages.size(); ++i) {
            QCOMPARE(stage_->column(u"SELECT TextDecoded FROM sentitems WHERE CreatorID = "
                                    "'smsgateway/%1' ORDER BY SequencePosition"_s.arg(ids[i])),
                     messages[i].second);
        }
        QCOMPARE(stage_->column(u"SELECT DISTINCT DestinationNumber FROM sentitems"_s),
                 QStringList{u"+8613912345678"_s});
    }

    void receives() {
        stage_->receive(u"+8613900000002"_s, QString(67, u'好'), u"050003070201"_s);
        stage_->receive(u"+8613900000002"_s, u"it's 😀"_s, u"050003070202"_s);
        const QString frame =
            u"013861390000000212260102030405"_s + QString(67, u'好') + u"it’s 😀"_s;
        QTRY_COMPARE_WITH_TIMEOUT(road_->client->answers(), frame, 60'000);
        QTRY_COMPARE(stage_->column(u"SELECT ID FROM inbox WHERE Processed = 'true'"_s).size(), 2);
    }

    void goes_on_after_the_daemon_was_down() {
        stage_->stop_daemon();
        road_->send(u"13912345678"_s, u"first"_s);
        QTRY_COMPARE(stage_->column(u"SELECT ID FROM outbox"_s).size(), 1);
        stage_->sign_in(u"-3 minutes"_s);
        stage_->run(u"DELETE FROM phones WHERE IMEI <> '1'"_s);
        const QString told = u"SELECT fate FROM event"_s;
        QTRY_COMPARE(road_->column(told), QStringList(u"not now"_s));
        QVERIFY(!engine_->health().up);

        stage_->start_daemon();
        QTRY_COMPARE_WITH_TIMEOUT(road_->column(told).value(0), u"accepted"_s, 60'000);
        QCOMPARE(stage_->column(u"SELECT ID FROM sentitems"_s).size(), 1);
    }
};

QTEST_GUILESS_MAIN(test_gateway_gammu_smsd)
#include "test_gateway_gammu_smsd.moc"
