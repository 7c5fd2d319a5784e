// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/frmRights.h"
#include "operators/frmuser.h"
#include "tests/screens/screen_fixture.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The box with the keyboard, and what is selected in it.
QString place(const QWidget& dialog) {
    const QWidget& box = *dialog.focusWidget();
    return box.objectName() + u':' + box.property("selectedText").toString();
}

/// The next dialog begins with the keyboard at this place; then these are typed and saved.
void begin(const QString& expected, const person::boxes& typed,
           const QString& button = u"cmdok"_s) {
    person::expect_modal("edit_dialog", [=](QWidget& dialog) {
        QTest::qCompare(place(dialog), expected, "place", "expected", __FILE__, __LINE__);
        person::type(dialog, typed);
        person::click(dialog, button);
    });
}

} // namespace

/// Where the keyboard is when a dialog comes up or comes back, and what a key does there.
class test_keyboard : public QObject {
    Q_OBJECT

    screen_fixture program_;

private slots:
    void init() { test_database::execute(u"insert or ignore into users values (2, '小王', '')"_s); }
    void cleanup() { QVERIFY(person::all_answered()); }

    void stays_where_one_types() {
        test_database::execute(u"insert into customer (cname, mobile) values ('李四', '139')"_s);
        person::during_modal<frmCustomer>([](frmCustomer& dialog) {
            QCOMPARE(place(dialog), u"txtCname:李四"_s);
            person::type(dialog, u"txtcID"_s, u"x"_s);
            QTest::keySequence(dialog.focusWidget(), QKeySequence::SelectAll);
            expect_refusal(u"输入错误"_s);
            person::click(dialog, u"cmdok"_s);
            QCOMPARE(place(dialog), u"txtcID:"_s);
            person::type(dialog, {{u"txtcID"_s, u"1"_s}, {u"txtMobile"_s, u" "_s}});
            QShowEvent restored; // as after a while as an icon
            QApplication::sendEvent(&dialog, &restored);
            QCOMPARE(place(dialog), u"txtMobile:"_s);
            expect_refusal(u"输入的客户信息错误，必须输入手机号码，请检查！  "_s);
            begin(u"txtMobile:"_s, {{u"txtMobile"_s, u"138"_s}, {u"txtSex"_s, u"it's"_s}});
            person::expect_box(u"不成功"_s, u"修改了客户不成功。 "_s);
            begin(u"txtSex:"_s, {}, u"cmdcancel"_s);
            person::type(dialog, u"txtphone"_s, u"010"_s);
            person::click(dialog, u"cmdok"_s);
        });
        person::click(program_.list(u"mnuProject"_s), u"Edit"_s);
    }

    void tells_which_box_is_wrong_and_begins_again() {
        const QString saved = u"成功创建一个新的用户，是否继续? "_s;
        begin(u"txtUserName:"_s, {{u"txtPassword"_s, u"a"_s}});
        expect_refusal(u"用户名称输入错误请检查！"_s);
        begin(u"txtUserName:"_s, {{u"txtUserName"_s, u"小李"_s}});
        expect_refusal(u"用户口令输入错误！ "_s);
        begin(u"txtconpass:"_s, {{u"txtconpass"_s, u"a"_s}});
        person::expect_box(u"创建成功"_s, saved, QMessageBox::Yes, QMessageBox::NoIcon);
        begin(u"txtUserName:小李"_s, {}, u"cmdcancel"_s);
        person::click(program_.list(u"mnuSysUSer"_s), u"Add"_s);
    }

    void my_password_begins_in_its_box_and_my_name_is_told_at_once() {
        begin(u"txtPassword:"_s, {{u"txtUserName"_s, u"老王"_s}});
        person::expect_box(u"保存成功"_s, u"成功修改了用户的信息"_s);
        person::choose(program_.window, u"mnuChgPassword"_s);
        QCOMPARE(person::text_of(program_.window, u"Panel2"_s), u"操作员：老王"_s);
    }

    void returns_in_a_row_send_nothing_twice() {
        const person::boxes message{{u"txtSms"_s, u"好"_s}};
        for (const auto& [item, typed, goes_on] :
             {std::tuple(u"mnuCreTech"_s, person::boxes(), true),
              {u"mnuTIMEC"_s, message, false},
              {u"mnusend"_s, message + person::boxes{{u"txtMobile"_s, u"139"_s}}, false}}) {
            person::expect_modal("edit_dialog", [&typed = typed](QWidget& dialog) {
                person::type(dialog, typed);
                person::click(dialog, u"cmdok"_s);
            });
            person::during_modal<QMessageBox>(
                [](QMessageBox& box) { person::press_key(box, Qt::Key_Return); });
            if (goes_on) {
                person::expect_modal("edit_dialog", [](QWidget& dialog) { dialog.close(); });
            }
            person::click(program_.list(item), u"Add"_s);
            QVERIFY2(person::all_answered(), qPrintable(item));
        }
    }

    void changes_the_right_that_is_marked_and_known() {
        const auto rights = [] {
            return test_database::rows(u"select userid, funid from rights order by 1, 2"_s)
                .join(u' ');
        };
        person::during_modal<frmRights>([&](frmRights& editor) {
            auto& functions = person::find<data_grid>(editor, u"dataFuns"_s);
            test_database::execute(u"alter table rights rename to gone"_s);
            for (int i = 0; i < 2; ++i) { // neither when the operator is chosen, nor afterwards
                person::during_modal<QMessageBox>([](QMessageBox& box) { box.accept(); });
            }
            person::find<data_grid>(editor, u"dataUsers"_s).selectRow(1);
            QTest::keyClick(&functions, Qt::Key_Space);
            test_database::execute(u"alter table gone rename to rights"_s);
            QTest::keyClick(&functions, Qt::Key_Space); // reads them
            QCOMPARE(rights(), u"1|1 1|2"_s);
            QTest::keyClick(&functions, Qt::Key_Space);
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
            QApplication::sendEvent(&functions, &held);
            QCOMPARE(rights(), u"1|1 1|2 2|1"_s);
            editor.close();
        });
        person::choose(program_.window, u"mnuSysRight"_s);
    }
};

QTEST_MAIN(test_keyboard)
#include "test_keyboard.moc"
