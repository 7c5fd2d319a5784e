// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/FrmParameter.h"
#include "listview/frmref.h"
#include "platform/widgets/progress_box.h"
#include "tests/screens/screen_fixture.h"

#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// The next dialog must show these texts; types those into it and clicks a button.
template <class Dialog>
void answer(const person::boxes& shown, const person::boxes& typed,
            const QString& button = u"cmdok"_s) {
    person::during_modal<Dialog>([=](Dialog& dialog) {
        for (const auto& [box, text] : shown) {
            QTest::qCompare(person::text_of(dialog, box), text, qPrintable(box), "expected",
                            __FILE__, __LINE__);
        }
        person::type(dialog, typed);
        person::click(dialog, button);
    });
}

/// The next dialog must be a picker; takes its last row, or cancels.
void pick(const QString& button = u"cmdok"_s) {
    person::during_modal<frmref>([=](frmref& picker) {
        grid_of(picker).selectRow(grid_of(picker).model()->rowCount() - 1);
        person::click(picker, button);
    });
}

void expect_saved(const QString& text, QMessageBox::StandardButton button) {
    person::expect_box(u"保存成功"_s, text, button, QMessageBox::NoIcon);
}

} // namespace

/// What the dialogs of the entities refuse, keep, load and save. The tour saves through all of
/// them.
class test_dialogs : public QObject {
    Q_OBJECT

    screen_fixture program_;

private slots:
    void init() {
        test_database::execute(u"delete from smsmodels"_s);
        test_database::execute(u"insert into smsmodels values (1, '早安'), (2, '晚安')"_s);
        test_database::execute(u"delete from customer"_s);
        test_database::execute(
            u"insert into customer (cid, cname, mobile, memo) values (1, '李四', '139', 'a\r\nb')"_s);
    }

    void cleanup() { QVERIFY(person::all_answered()); }

    void adds_until_the_operator_stops() {
        const QString longest(200, u'长');
        answer<frmSmsm>({{u"txtMID"_s, u"0"_s}}, {{u"txtText"_s, u"it's"_s}});
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存短语信息，请检查！"_s);
        answer<frmSmsm>({{u"txtText"_s, u"it's"_s}}, {{u"txtText"_s, longest + u'!'}});
        expect_refusal(u"输入的短语太长错误，请检查！  "_s);
        answer<frmSmsm>({{u"txtText"_s, longest + u'!'}}, {{u"txtText"_s, longest}});
        expect_saved(u"成功创建一个短语信息，继续创建吗？ "_s, QMessageBox::Yes);
        answer<frmSmsm>({{u"txtText"_s, longest}}, {}, u"cmdcancel"_s);
        const frmdatagrid& list = program_.list(u"mnuCreTech"_s);
        person::click(list, u"Add"_s);
        QCOMPARE(column_of(list, 1), u"早安 晚安 "_s + longest);
    }

    void writes_the_key_of_the_number_box() {
        answer<frmSmsm>({{u"txtMID"_s, u"1"_s}}, {{u"txtText"_s, u"it's"_s}});
        person::expect_box(u"不成功"_s, u"修改了短语不成功。 "_s);
        answer<frmSmsm>({{u"txtText"_s, u"it's"_s}}, {{u"txtMID"_s, u"40000"_s}});
        expect_refusal(u"输入错误"_s);
        answer<frmSmsm>({{u"txtMID"_s, u"40000"_s}, {u"txtText"_s, u"it's"_s}},
                        {{u"txtMID"_s, u"2"_s}, {u"txtText"_s, u"新年好"_s}});
        person::expect_box(u"保存成功"_s, u"成功地修改了短语。 "_s);
        const frmdatagrid& list = program_.list(u"mnuCreTech"_s);
        person::click(list, u"Edit"_s);
        QCOMPARE(column_of(list, 1), u"早安 新年好"_s);
    }

    void edits_and_deletes_only_what_is_there() {
        const frmdatagrid& list = program_.list(u"mnuCreTech"_s);
        test_database::execute(u"delete from smsmodels where mid=1"_s); // by somebody else
        person::expect_box(u"修改"_s, u"不能修改短语, 记录不存在！"_s);
        person::click(list, u"Edit"_s);
        person::expect_box(u"删除成功"_s, u"成功删除短语"_s);
        person::click(list, u"Delete"_s);
        person::expect_box(u"不能删除"_s, u"不能删除短语"_s);
        person::click(list, u"Delete"_s);
        test_database::execute(u"insert into smsmodels values (32768, '太多')"_s);
        person::click(list, u"refresh"_s);
        person::expect_box(u"错误"_s, u"修改错误"_s); // the key is no 16-bit number
        person::click(list, u"Edit"_s);
        person::expect_box(u"错误"_s, u"删除错误"_s);
        person::click(list, u"Delete"_s);
        QCOMPARE(column_of(list, 0), u"32768"_s);
    }

    void keeps_every_box_of_a_refused_customer() {
        const person::boxes typed{{u"txtMobile"_s, u"abc"_s}, {u"txtCname"_s, u"O'Hara"_s},
                                  {u"txtSex"_s, u"男"_s},     {u"txtbirth"_s, u"五月"_s},
                                  {u"txtphone"_s, u"010"_s},  {u"txtmemo"_s, u"c\nd"_s}};
        answer<frmCustomer>({}, typed);
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存客户信息，请检查！"_s);
        answer<frmCustomer>(typed, {{u"txtMobile"_s, u"   "_s}});
        expect_refusal(u"输入的客户信息错误，必须输入手机号码，请检查！  "_s);
        answer<frmCustomer>({{u"txtMobile"_s, u"   "_s}}, {}, u"cmdcancel"_s);
        const frmdatagrid& list = program_.list(u"mnuProject"_s);
        person::click(list, u"Add"_s);
        answer<frmCustomer>({}, {{u"txtMobile"_s, u"138"_s}}); // the remark is left alone
        person::expect_box(u"保存成功"_s, u"成功地修改了客户。 "_s);
        person::click(list, u"Edit"_s);
        QCOMPARE(test_database::rows(u"select cname, mobile, memo from customer"_s),
                 QStringList{u"李四|138|a\r\nb"_s});
    }

    void checks_the_port() {
        QString last = u"1"_s;
        const QString note = u"修改以后，请退出程序再进来，新的参数才起作用。"_s;
        for (const auto& port : {u"-1"_s, u"40000"_s, u"abc"_s, QString()}) {
            answer<FrmParameter>({{u"txtport"_s, last}, {u"lblRestart"_s, note}},
                                 {{u"txtport"_s, port}});
            expect_refusal(u"输入的参数错误，请检查！  "_s);
            last = port;
        }
        answer<FrmParameter>({}, {{u"txtip"_s, {}}, {u"txtport"_s, u"0"_s}});
        person::expect_box(u"保存成功"_s, u"成功地修改了参数。 "_s);
        person::choose(program_.window, u"mnuPara"_s);
        QCOMPARE(test_database::rows(u"select * from parameters"_s), QStringList{u"|0"_s});
        test_database::execute(u"delete from parameters"_s);
        person::expect_box(u"修改"_s, u"不能修改参数, 记录不存在！"_s);
        person::choose(program_.window, u"mnuPara"_s);
    }

    void sends_at_once_or_later() {
        answer<frmSendsms>({{u"txtCid"_s, u"0"_s}}, {{u"txtSms"_s, u"  "_s}});
        expect_refusal(u"输入的短信信息错误，必须输入短信，请检查！  "_s); // nor is there a mobile
        answer<frmSendsms>({}, {{u"txtSms"_s, u"晚\u00a0安"_s}, {u"txtMobile"_s, u"  "_s}});
        expect_refusal(u"输入的短信信息错误，必须输入手机号码，请检查！  "_s);
        answer<frmSendsms>(
            {{u"txtMobile"_s, u"  "_s}, {u"lblLength"_s, u"共 3 个字，计 1 条短信"_s}}, {},
            u"Cmdrefcus"_s);
        pick();
        answer<frmSendsms>({{u"txtCname"_s, u"李四"_s}}, {});
        const QString saved = u"成功创建一个短信信息，继续创建吗？ "_s;
        expect_saved(saved, QMessageBox::Yes);
        person::during_modal<frmSendsms>([&saved](frmSendsms& dialog) {
            const QString format = u"yyyy-MM-dd HH:mm:ss"_s;
            const auto shown =
                QDateTime::fromString(person::text_of(dialog, u"txtStime"_s), format);
            person::type(dialog, u"txtStime"_s, u"2024-02-30 08:00:00"_s);
            expect_refusal(u"输入错误"_s);
            person::click(dialog, u"cmdok"_s);
            person::type(dialog, u"txtStime"_s,
                         shown.addSecs(1).toString(u"yyyy－MM－dd　HH：mm：ss"_s)); // wide ones
            test_database::execute(u"delete from customer"_s);
            pick();
            expect_refusal(u"No select object"_s, u"Warning"_s);
            pick(u"cmdcancel"_s);
            person::click(dialog, u"Cmdrefcus"_s);
            QCOMPARE(person::text_of(dialog, u"txtMobile"_s), u"139"_s);
            QCOMPARE(dialog.focusWidget()->objectName(), u"txtCname"_s);
            person::type(dialog, u"txtCid"_s, {});
            expect_saved(saved, QMessageBox::No);
            person::click(dialog, u"cmdok"_s);
        });
        person::click(program_.list(u"mnusend"_s), u"Add"_s);
        QCOMPARE(
            test_database::rows(
                u"select mobile, sms, cid, imsend, stime > rtime, sendisok, smsfrom from sendsms"_s),
            (QStringList{u"139|晚\u00a0安|1|-1|0|0|0"_s, u"139|晚\u00a0安|0|0|1|0|0"_s}));
    }

    void needs_a_customer_and_a_class() {
        const person::boxes picked_only{
            {u"txtcid"_s, u"7"_s}, {u"txtccID"_s, u"7"_s}, {u"txtCcname"_s, u"会员"_s}};
        answer<frmGroup>({{u"txtcid"_s, u"0"_s}, {u"txtccID"_s, u"0"_s}}, picked_only);
        expect_refusal(u"输入的客户分组太长错误，请检查！  "_s);
        answer<frmGroup>({{u"txtCcname"_s, {}}}, {}, u"Cmdrefcus"_s);
        pick();
        answer<frmGroup>({{u"txtcid"_s, u"1"_s}, {u"txtMobile"_s, u"139"_s}}, {}, u"Cmdrefcus"_s);
        pick(u"cmdcancel"_s);
        answer<frmGroup>({{u"txtcid"_s, {}}, {u"txtMobile"_s, {}}}, {});
        expect_refusal(u"输入错误"_s); // an emptied number is none
        answer<frmGroup>({}, {}, u"cmdcancel"_s);
        person::click(program_.list(u"mnugroup"_s), u"Add"_s);
    }

    void sends_to_a_class_or_to_all() {
        test_database::execute(u"insert into cusclass (ccid, cname) values (7, '会员')"_s);
        test_database::execute(u"insert into cgroup (cid, ccid) values (1, 7)"_s);
        test_database::execute(u"insert into customer (mobile) values ('138')"_s);
        answer<frmGsendsms>({{u"txtCid"_s, u"0"_s}, {u"lblAddressees"_s, u"将发给 0 位客户"_s}},
                            {{u"txtSms"_s, u" "_s}});
        expect_refusal(u"输入的短信发送信息错误，必须输入短信，请检查！  "_s);
        answer<frmGsendsms>({}, {{u"txtCid"_s, {}}, {u"txtSms"_s, u"it's"_s}});
        expect_refusal(u"输入错误"_s);
        answer<frmGsendsms>({}, {{u"txtCid"_s, u"7"_s}});
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存短信发送信息，请检查！"_s);
        answer<frmGsendsms>({{u"lblAddressees"_s, u"将发给 1 位客户"_s}}, {}, u"Chkall"_s);
        answer<frmGsendsms>({{u"txtSms"_s, u"it's"_s}, {u"lblAddressees"_s, u"将发给 2 位客户"_s}},
                            {}, u"cmdcancel"_s);
        person::click(program_.list(u"mnuTIMEC"_s), u"Add"_s);
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

    void what_was_sent_or_received_is_only_deleted() {
        test_database::execute(
            u"insert into gsendsms (sms, rtime, stime) values ('好', '2024/01/31 08:00:00', '2024/01/31 08:00:00')"_s);
        test_database::execute(
            u"insert into recvedsms values (1, '139', '好', '2024/01/31 08:00:00', 1)"_s);
        for (const auto& [item, deleted] : {std::pair(u"mnuTIMEC"_s, u"成功删除短信发送"_s),
                                            std::pair(u"mnunewcustomer"_s, u"成功删除短信"_s)}) {
            const frmdatagrid& list = program_.list(item);
            person::click(list, u"Edit"_s); // does nothing
            person::expect_box(u"删除成功"_s, deleted);
            person::click(list, u"Delete"_s);
            QCOMPARE(column_of(list, 0), QString());
        }
        person::click(program_.list(u"mnunewcustomer"_s), u"Add"_s); // nor does this
    }
};

QTEST_MAIN(test_dialogs)
#include "test_dialogs.moc"
