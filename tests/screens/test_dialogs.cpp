// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/FrmParameter.h"
#include "listview/frmref.h"
#include "tests/screens/screen_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using box_texts = QList<std::pair<QString, QString>>;

/// The next dialog must show these texts; types those into it and clicks a button.
template <class Dialog>
void answer(const box_texts& shown, const box_texts& typed, const QString& button = u"cmdok"_s) {
    person::during_modal<Dialog>([=](Dialog& dialog) {
        for (const auto& [box, text] : shown) {
            QTest::qCompare(person::text_of(dialog, box), text, qPrintable(box), "expected",
                            __FILE__, __LINE__);
        }
        for (const auto& [box, text] : typed) {
            person::type(dialog, box, text);
        }
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

void expect_refusal(const QString& text, const QString& title = u"输入错误"_s) {
    person::expect_box(title, text, QMessageBox::Ok, QMessageBox::Critical);
}

void expect_question(const QString& text, QMessageBox::StandardButton button) {
    person::expect_box(u"保存成功"_s, text, button, QMessageBox::NoIcon);
}

} // namespace

/// Adding, editing, deleting and picking through the dialogs of the entities.
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
        const QString go_on = u"成功创建一个短语信息，继续创建吗？ "_s;
        const QString longest(200, u'长');
        answer<frmSmsm>({{u"txtMID"_s, u"0"_s}}, {{u"txtText"_s, u"节日快乐"_s}});
        expect_question(go_on, QMessageBox::Yes);
        answer<frmSmsm>({{u"txtText"_s, u"节日快乐"_s}}, {{u"txtText"_s, u"it's"_s}});
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存短语信息，请检查！"_s);
        answer<frmSmsm>({{u"txtText"_s, u"it's"_s}}, {{u"txtText"_s, longest + u'!'}});
        expect_refusal(u"输入的短语太长错误，请检查！  "_s);
        answer<frmSmsm>({{u"txtText"_s, longest + u'!'}}, {{u"txtText"_s, longest}});
        expect_question(go_on, QMessageBox::Yes);
        answer<frmSmsm>({{u"txtText"_s, longest}}, {}, u"cmdcancel"_s);
        const frmdatagrid& list = program_.list(u"mnuCreTech"_s);
        person::click(list, u"Add"_s);
        QCOMPARE(column_of(list, 1), u"早安 晚安 节日快乐 "_s + longest);
    }

    void writes_the_key_of_the_number_box() {
        answer<frmSmsm>({{u"txtMID"_s, u"1"_s}}, {{u"txtText"_s, u"it's"_s}});
        person::expect_box(u"不成功"_s, u"修改了短语不成功。 "_s);
        answer<frmSmsm>({{u"txtText"_s, u"it's"_s}}, {{u"txtMID"_s, u"abc"_s}});
        expect_refusal(u"输入错误"_s);
        answer<frmSmsm>({{u"txtMID"_s, u"abc"_s}}, {{u"txtMID"_s, u"40000"_s}});
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
        QVERIFY(test_database::rows(u"select * from smsmodels"_s).isEmpty());
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
        box_texts typed{{u"txtMobile"_s, u"   "_s}, {u"txtCname"_s, u"O'Hara"_s},
                        {u"txtSex"_s, u"男"_s},     {u"txtbirth"_s, u"五月"_s},
                        {u"txtphone"_s, u"010"_s},  {u"txtmemo"_s, u"c\nd"_s}};
        answer<frmCustomer>({}, typed);
        expect_refusal(u"输入的客户信息错误，必须输入手机号码，请检查！  "_s);
        answer<frmCustomer>(typed, {{u"txtMobile"_s, u"abc"_s}});
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存客户信息，请检查！"_s);
        typed[0].second = u"abc"_s;
        answer<frmCustomer>(typed, {{u"txtCname"_s, u"张三"_s}});
        expect_question(u"成功创建一个客户信息，继续创建吗？ "_s, QMessageBox::No);
        const frmdatagrid& list = program_.list(u"mnuProject"_s);
        person::click(list, u"Add"_s);
        answer<frmCustomer>({}, {{u"txtMobile"_s, u"138"_s}}); // the first one's remark is left
        person::expect_box(u"保存成功"_s, u"成功地修改了客户。 "_s);
        person::click(list, u"Edit"_s);
        QCOMPARE(test_database::rows(u"select cname,mobile,sex,birth,phone,memo from customer"_s),
                 (QStringList{u"李四|138||||a\r\nb"_s, u"张三|abc|男|五月|010|c\nd"_s}));
    }

    void checks_the_port() {
        QString last = u"1"_s;
        for (const auto& port : {u"-1"_s, u"40000"_s, u"abc"_s, QString()}) {
            answer<FrmParameter>({{u"txtport"_s, last}}, {{u"txtport"_s, port}});
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
        const QString go_on = u"成功创建一个短信信息，继续创建吗？ "_s;
        answer<frmSendsms>({{u"txtCid"_s, u"0"_s}}, {{u"txtSms"_s, u"  "_s}});
        expect_refusal(u"输入的短信信息错误，必须输入短信，请检查！  "_s); // nor is there a mobile
        answer<frmSendsms>({}, {{u"txtSms"_s, u"你好"_s}, {u"txtMobile"_s, u"  "_s}});
        expect_refusal(u"输入的短信信息错误，必须输入手机号码，请检查！  "_s);
        answer<frmSendsms>({{u"txtMobile"_s, u"  "_s}}, {}, u"cmdrefsms"_s);
        pick(u"cmdcancel"_s);
        answer<frmSendsms>({{u"txtSms"_s, u"你好"_s}}, {}, u"cmdrefsms"_s);
        pick();
        answer<frmSendsms>({{u"txtSms"_s, u"晚安"_s}}, {{u"txtSms"_s, u"晚\u00a0安"_s}},
                           u"Cmdrefcus"_s);
        pick();
        answer<frmSendsms>({{u"txtCname"_s, u"李四"_s}}, {});
        expect_question(go_on, QMessageBox::Yes);
        person::during_modal<frmSendsms>([](frmSendsms& dialog) {
            const QString format = u"yyyy-MM-dd HH:mm:ss"_s;
            const auto shown =
                QDateTime::fromString(person::text_of(dialog, u"txtStime"_s), format);
            person::type(dialog, u"txtStime"_s, u"2024-02-30 08:00:00"_s);
            expect_refusal(u"输入错误"_s);
            person::click(dialog, u"cmdok"_s);
            person::type(dialog, u"txtStime"_s, shown.addSecs(1).toString(format));
            test_database::execute(u"delete from customer"_s);
            pick();
            expect_refusal(u"No select object"_s, u"Warning"_s);
            pick(u"cmdcancel"_s);
            person::click(dialog, u"Cmdrefcus"_s);
            QCOMPARE(person::text_of(dialog, u"txtMobile"_s), u"139"_s);
            person::type(dialog, u"txtCid"_s, {});
            expect_question(u"成功创建一个短信信息，继续创建吗？ "_s, QMessageBox::No);
            person::click(dialog, u"cmdok"_s);
        });
        person::click(program_.list(u"mnusend"_s), u"Add"_s);
        QCOMPARE(
            test_database::rows(
                u"select mobile, sms, cid, imsend, stime > rtime, sendisok, smsfrom from sendsms"_s),
            (QStringList{u"139|晚\u00a0安|1|-1|0|0|0"_s, u"139|晚\u00a0安|0|0|1|0|0"_s}));
    }

    void puts_a_customer_into_a_class() {
        test_database::execute(u"delete from cusclass"_s);
        test_database::execute(u"insert into cusclass values (7, '贵宾')"_s);
        answer<frmGroup>({{u"txtcid"_s, u"0"_s}, {u"txtccID"_s, u"0"_s}}, {});
        expect_refusal(u"输入的客户分组太长错误，请检查！  "_s);
        answer<frmGroup>({}, {}, u"cmdref"_s);
        pick();
        answer<frmGroup>({{u"txtccID"_s, u"7"_s}, {u"txtCcname"_s, u"贵宾"_s}}, {}, u"Cmdrefcus"_s);
        pick();
        answer<frmGroup>(
            {{u"txtcid"_s, u"1"_s}, {u"txtcusname"_s, u"李四"_s}, {u"txtMobile"_s, u"139"_s}}, {});
        expect_question(u"成功创建一个客户分组信息，继续创建吗？ "_s, QMessageBox::Yes);
        answer<frmGroup>({}, {}, u"Cmdrefcus"_s);
        pick(u"cmdcancel"_s);
        answer<frmGroup>({{u"txtcid"_s, {}}, {u"txtMobile"_s, {}}}, {});
        expect_refusal(u"输入错误"_s); // an emptied number is none
        answer<frmGroup>({}, {}, u"cmdcancel"_s);
        const frmdatagrid& list = program_.list(u"mnugroup"_s);
        person::click(list, u"Add"_s);
        QCOMPARE(column_of(list, 2) + column_of(list, 5), u"贵宾139"_s);
    }

    void sends_to_a_class_or_to_all() {
        const QString go_on = u"成功创建一个短信发送信息，继续创建吗？ "_s;
        answer<frmGsendsms>({{u"txtCid"_s, u"0"_s}}, {{u"txtSms"_s, u" "_s}});
        expect_refusal(u"输入的短信发送信息错误，必须输入短信，请检查！  "_s);
        answer<frmGsendsms>({}, {{u"txtCid"_s, {}}, {u"txtSms"_s, u"it's"_s}});
        expect_refusal(u"输入错误"_s);
        answer<frmGsendsms>({}, {{u"txtCid"_s, u"7"_s}});
        person::expect_box(u"不能保存 "_s, u"输入错误，不能保存短信发送信息，请检查！"_s);
        answer<frmGsendsms>({{u"txtSms"_s, u"it's"_s}}, {{u"txtSms"_s, u"早"_s}}, u"Chkall"_s);
        answer<frmGsendsms>({}, {});
        expect_question(go_on, QMessageBox::No);
        const frmdatagrid& list = program_.list(u"mnuTIMEC"_s);
        test_database::execute(u"delete from sendsms"_s);
        person::click(list, u"Add"_s);
        person::click(list, u"Edit"_s); // does nothing
        QCOMPARE(column_of(list, 1) + column_of(list, 3), u"√早"_s);
        QCOMPARE(test_database::rows(u"select mobile, sms, smsfrom, imsend from sendsms"_s),
                 QStringList{u"139|早|-1|-1"_s});
        person::expect_box(u"删除成功"_s, u"成功删除短信发送"_s);
        person::click(list, u"Delete"_s);
        QCOMPARE(test_database::value(u"select count(*) from sendsms"_s), 1);
    }

    void received_messages_are_only_deleted() {
        test_database::execute(
            u"insert into recvedsms values (1, '139', '好', '2024/01/31 08:00:00', 1)"_s);
        const frmdatagrid& list = program_.list(u"mnunewcustomer"_s);
        person::click(list, u"Add"_s);
        person::click(list, u"Edit"_s);
        person::expect_box(u"删除成功"_s, u"成功删除短信"_s);
        person::click(list, u"Delete"_s);
        QVERIFY(test_database::rows(u"select * from recvedsms"_s).isEmpty());
    }
};

QTEST_MAIN(test_dialogs)
#include "test_dialogs.moc"
