// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmGsendsms.h"
#include "tests/messaging/scripted_gateway.h"
#include "tests/screens/screen_fixture.h"

#include <QProgressDialog>

using namespace Qt::StringLiterals;

/// The gateway's part in a long group send: a verdict as the box comes up, a received message while
/// rows are written.
class talker : public QObject {
public:
    explicit talker(scripted_gateway& gateway) : gateway_(gateway) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (const auto* box = qobject_cast<QProgressDialog*>(object)) {
            if (event->type() == QEvent::Show) {
                gateway_.say(u"1"_s);
            } else if (event->type() == QEvent::Paint && box->value() == 1000 &&
                       !std::exchange(has_reported_, true)) {
                gateway_.say(u"013861391234567812240131235959ok"_s);
            }
        }
        return QObject::eventFilter(object, event);
    }

private:
    scripted_gateway& gateway_;
    bool has_reported_ = false;
};

class test_group_send : public QObject {
    Q_OBJECT

private slots:
    void loses_and_repeats_nothing() {
        scripted_gateway gateway;
        gateway.listen();
        screen_fixture program(gateway.port());
        dispatch_engine& engine = program.window.engine();
        QTRY_COMPARE(engine.Winsock1.State(), Winsock::StateEnum::connected);
        test_database::execute(
            u"insert into sendsms (mobile, sms, stime) values ('139', 'a', '2024')"_s);
        program.window.initsend();
        QTRY_COMPARE(gateway.frames, QStringList(u"3139a"_s));
        test_database::execute(
            u"insert into customer (mobile) with recursive n(i) as (values (1) union all select i+1 from n where i<5000) select i from n"_s);
        const frmdatagrid& list = program.list(u"mnuTIMEC"_s);
        const talker talks(gateway);
        person::during_modal<frmGsendsms>([](frmGsendsms& dialog) {
            person::type(dialog, u"txtSms"_s, u"Hi"_s);
            person::click(dialog, u"Chkall"_s);
            person::expect_box(u"保存成功"_s, u"成功创建一个短信发送信息，继续创建吗？ "_s,
                               QMessageBox::No, QMessageBox::NoIcon);
            person::click(dialog, u"cmdok"_s);
        });
        person::click(list, u"Add"_s);
        // Nothing had to wait for the next poll.
        QTRY_COMPARE(test_database::rows(u"select sms from recvedsms"_s), QStringList(u"ok"_s));
        QCOMPARE(test_database::rows(u"select sms, sendisok, count(*) from sendsms group by sms"_s),
                 QStringList({u"a|-1|1"_s, u"Hi|0|5000"_s}));
        QVERIFY(engine.sendready() && person::all_answered());
    }
};

QTEST_MAIN(test_group_send)
#include "test_group_send.moc"
