// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmref.h"
#include "platform/widgets/progress_box.h"
#include "tests/screens/screen_fixture.h"

#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

/// What is particular about some dialogs; what all of them do is tested over all entities.
class test_dialogs : public QObject {
    Q_OBJECT

    screen_fixture program_;

private slots:
    void cleanup() { QVERIFY(person::all_answered()); }

    void edits_and_deletes_no_key_that_is_too_large() {
        test_database::execute(u"insert into smsmodels values (32768, '太多')"_s);
        const frmdatagrid& list = program_.list(u"mnuCreTech"_s);
        person::expect_box(u"错误"_s, u"修改错误"_s);
        person::click(list, u"Edit"_s);
        person::expect_box(u"错误"_s, u"删除错误"_s);
        person::click(list, u"Delete"_s);
        QCOMPARE(column_of(list, 0), u"32768"_s);
    }

    void leaves_alone_what_is_not_changed() {
        test_database::execute(
            u"insert into customer (cname, mobile, memo) values ('李四', '139', 'a\r\nb')"_s);
        person::during_modal<frmCustomer>([](frmCustomer& dialog) {
            person::type(dialog, u"txtMobile"_s, u"138"_s);
            person::expect_box(u"保存成功"_s, u"成功地修改了客户。 "_s);
            person::click(dialog, u"cmdok"_s);
        });
        person::click(program_.list(u"mnuProject"_s), u"Edit"_s);
        QCOMPARE(test_database::rows(u"select cname, mobile, memo from customer"_s),
                 QStringList{u"李四|138|a\r\nb"_s});
    }

    void sends_at_once_or_later() {
        const QString saved = u"成功创建一个短信信息，继续创建吗？ "_s;
        person::during_modal<frmSendsms>([&saved](frmSendsms& dialog) {
            test_database::execute(u"delete from customer"_s);
            person::during_modal<frmref>([](frmref& picker) { person::click(picker, u"cmdok"_s); });
            expect_refusal(u"No select object"_s, u"Warning"_s);
            person::during_modal<frmref>(
                [](frmref& picker) { person::click(picker, u"cmdcancel"_s); });
            person::click(dialog, u"Cmdrefcus"_s);
            QCOMPARE(dialog.focusWidget()->objectName(), u"txtCname"_s);
            person::type(dialog, {{u"txtMobile"_s, u"139"_s}, {u"txtSms"_s, u"好"_s}});
            person::expect_box(u"保存成功"_s, saved, QMessageBox::Yes, QMessageBox::NoIcon);
            person::during_modal<frmSendsms>([&saved](frmSendsms& again) {
                const QString format = u"yyyy-MM-dd HH:mm:ss"_s;
                const auto shown =
                    QDateTime::fromString(person::text_of(again, u"txtStime"_s), format);
                person::type(again, u"txtStime"_s, shown.addSecs(1).toString(format));
                person::expect_box(u"保存成功"_s, saved, QMessageBox::No, QMessageBox::NoIcon);
                person::click(again, u"cmdok"_s);
            });
            person::click(dialog, u"cmdok"_s);
        });
        person::click(program_.list(u"mnusend"_s), u"Add"_s);
        QCOMPARE(test_database::rows(u"select imsend, stime > rtime from sendsms"_s),
                 (QStringList{u"-1|0"_s, u"0|1"_s}));
    }

    void nothing_else_happens_while_a_long_run_shows_how_far_it_is() {
        QTimer other;
        const QSignalSpy fired(&other, &QTimer::timeout);
        other.start(0);
        progress_box box(u"…"_s, 2);
        const qsizetype before = fired.count();
        box.report(1);
        QCOMPARE(fired.count(), before);
        QTRY_VERIFY(fired.count() > before); // afterwards it does
    }
};

QTEST_MAIN(test_dialogs)
#include "test_dialogs.moc"
