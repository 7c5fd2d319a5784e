// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/frmRights.h"
#include "operators/frmuser.h"
#include "tests/screens/screen_fixture.h"

#include <QLabel>

using namespace Qt::StringLiterals;

/// Where the keyboard is when a dialog comes up or comes back, and what a key does there.
class test_keyboard : public QObject {
    Q_OBJECT

    screen_fixture program_;

private slots:
    void init() { test_database::execute(u"insert or ignore into users values (2, '小王', '')"_s); }
    void cleanup() { QVERIFY(person::all_answered()); }

    void stays_where_one_types() {
        person::during_modal<frmCustomer>([](frmCustomer& dialog) {
            person::type(dialog, u"txtMobile"_s, u" "_s);
            QShowEvent restored; // as after a while as an icon
            QApplication::sendEvent(&dialog, &restored);
            QCOMPARE(dialog.focusWidget()->objectName(), u"txtMobile"_s);
            person::click(dialog, u"cmdcancel"_s);
        });
        person::click(program_.list(u"mnuProject"_s), u"Add"_s);
    }

    void my_password_begins_in_its_box_and_my_name_is_told_at_once() {
        person::during_modal<frmuser>([](frmuser& dialog) {
            QCOMPARE(dialog.focusWidget()->objectName(), u"txtPassword"_s);
            person::type(dialog, u"txtUserName"_s, u"老王"_s);
            person::click(dialog, u"cmdok"_s);
        });
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
            const auto fails = [&](const std::function<void()>& act) {
                person::during_modal<QMessageBox>([](QMessageBox& box) { box.accept(); });
                test_database::execute(u"alter table rights rename to gone"_s);
                act();
                test_database::execute(u"alter table gone rename to rights"_s);
            };
            const auto toggle = [&] { QTest::keyClick(&functions, Qt::Key_Space); };
            fails([&] { person::find<data_grid>(editor, u"dataUsers"_s).selectRow(1); });
            fails(toggle); // they are not known
            toggle();      // reads them
            fails(toggle); // and there is no mark without a right
            QCOMPARE(functions.model()->index(0, 2).data().toString(), QString());
            QCOMPARE(rights(), u"1|1 1|2"_s);
            toggle();
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
