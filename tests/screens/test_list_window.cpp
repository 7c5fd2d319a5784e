// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/view_definition.h"
#include "listview/frmFind.h"
#include "listview/frmSetList.h"
#include "listview/frmSort.h"
#include "listview/frmconduser.h"
#include "listview/frmref.h"
#include "listview/grid_columns.h"
#include "operators/vc_users.h"
#include "tests/screens/screen_fixture.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QRadioButton>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

/// Confirms a choice in the sort or find dialog; a column of -1 leaves the column open.
void choose(const QWidget& dialog, int column, int option) {
    person::find<QComboBox>(dialog, u"ComboColName"_s).setCurrentIndex(column);
    person::click(dialog, u"Option1_%1"_s.arg(option));
    person::click(dialog, u"cmdOK"_s);
}

} // namespace

/// The one list window, over phrases.
class test_list_window : public QObject {
    Q_OBJECT

    screen_fixture program_;

    frmdatagrid& open() { return program_.list(u"mnuCreTech"_s); }

private slots:
    void init() {
        test_database::execute(u"delete from smsmodels"_s);
        test_database::execute(
            u"insert into smsmodels values (1, 'B'), (2, 'a'), (10, 'c'), (11, 'A')"_s);
    }

    void cleanup() {
        program_.area.closeAllSubWindows();
        QVERIFY(person::all_answered());
    }

    void has_the_buttons_of_its_mode() {
        QWidget window;
        QToolBar toolbar(&window);
        image_list images;
        for (const auto& [mode, first] :
             {std::pair(u"all"_s, u"Add增加 Edit修改 Delete删除 | "_s),
              std::pair(u"modify filter"_s, u"Edit修改 | filter过滤 "_s),
              std::pair(u"modify"_s, u"Edit修改 | "_s), std::pair(u"ALL"_s, QString())}) {
            build_toolbar(images, toolbar, true, mode.section(u' ', 0, 0),
                          mode.endsWith(u"filter"));
            QStringList shown;
            for (const QAction* button : toolbar.actions()) {
                QVERIFY(button->isSeparator() || !button->icon().isNull());
                shown += button->isSeparator() ? u"|"_s : button->objectName() + button->text();
            }
            QCOMPARE(
                shown.join(u' '),
                first +
                    u"find查找 sort排序 setfield设置 refresh刷新 Save保存 | Help帮助 Exit退出"_s);
        }
    }

    void finds_in_both_directions() {
        const frmdatagrid& list = open();
        const auto find = [&list](int option, const QString& text, bool found = true) {
            person::during_modal<frmFind>([=](frmFind& dialog) {
                person::type(dialog, u"txtV"_s, text);
                choose(dialog, -1, option); // stands for the second column
            });
            if (!found) {
                person::expect_box(u"Information"_s, u"Cann't find! "_s);
            }
            person::click(list, u"find"_s);
            return list.value(u"mid"_s);
        };
        QCOMPARE(find(0, u"A"_s), u"2"_s);
        QCOMPARE(find(0, u"a"_s), u"11"_s);
        QCOMPARE(find(1, u"a"_s), u"2"_s);
        QCOMPARE(find(1, u"a"_s, false), u"2"_s);
        QCOMPARE(find(0, u"c"_s), u"10"_s);
        QCOMPARE(find(0, u"none"_s, false), u"10"_s);
        QCOMPARE(find(1, u"a"_s), u"2"_s);
    }

    void finds_again_what_was_looked_for() {
        frmdatagrid& list = open();
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            program_.window.activateWindow(); // or there are no shortcuts
            static_cast<void>(QTest::qWaitForWindowActive(&program_.window));
            person::press_key(list, key, modifiers);
            return list.value(u"mid"_s);
        };
        person::during_modal<frmFind>([](frmFind& dialog) { // nothing was looked for yet
            person::type(dialog, u"txtV"_s, u"A"_s);
            choose(dialog, 1, 0);
        });
        QCOMPARE(press(Qt::Key_F3), u"2"_s);
        QCOMPARE(press(Qt::Key_F3), u"11"_s);
        QCOMPARE(press(Qt::Key_F3, Qt::ShiftModifier), u"2"_s);
        person::during_modal<frmFind>([](frmFind& dialog) { // it is all there
            QCOMPARE(person::text_of(dialog, dialog.focusWidget()->objectName()), u"A"_s);
            QVERIFY(person::find<QRadioButton>(dialog, u"Option1_0"_s).isChecked());
            person::click(dialog, u"Option1_1"_s);
            person::press_key(dialog, Qt::Key_Return);
        });
        person::expect_box(u"Information"_s, u"Cann't find! "_s);
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(press(Qt::Key_F3, Qt::ShiftModifier), u"11"_s); // the other way round
    }

    void keeps_its_order_and_row() {
        const frmdatagrid& list = open();
        const frmdatagrid& other = open();
        const QAbstractItemModelTester tester(grid_of(list).model());
        person::during_modal<frmSort>([](frmSort& dialog) { choose(dialog, 0, 0); });
        person::click(list, u"sort"_s);
        QCOMPARE(column_of(list, 0), u"11 10 2 1"_s);
        person::during_modal<frmSort>([](frmSort& dialog) { choose(dialog, -1, 1); });
        person::click(list, u"sort"_s);
        QCOMPARE(column_of(list, 0), u"2 11 1 10"_s);
        grid_of(list).selectRow(2);
        test_database::execute(u"insert into smsmodels values (12, 'Aa')"_s);
        person::click(list, u"refresh"_s);
        QCOMPARE(column_of(list, 1), u"a A Aa B c"_s);
        QCOMPARE(list.value(u"mid"_s), u"1"_s);
        QCOMPARE(column_of(other, 0), u"1 2 10 11"_s);

        person::press_key(program_.window, Qt::Key_Escape);
        person::click(list, u"Help"_s);
        QCOMPARE(program_.area.subWindowList().size(), 2);
        person::click(list, u"Exit"_s);
        QTRY_COMPARE(program_.area.subWindowList().size(), 1);
    }

    void needs_a_second_column_to_choose_by_itself() {
        spListHeaders headers;
        headers.Add({.key = u"mid"_s, .caption = u"编号"_s});
        frmSort dialog(headers);
        dialog.show();
        person::expect_box(u"提示"_s, u"请先选择列名！"_s);
        choose(dialog, -1, 0);
        QVERIFY(dialog.isVisible() && !dialog.confirmed);
    }

    void shows_the_operation_log_that_was_asked_for() {
        test_database::execute(
            u"insert into operatelog (optime, userid, operation) values ('2024/01/31 08:00:00', 1, 'a'), ('2024/01/31 09:00:00', 7, 'b'), ('2024/01/31 10:00:00', 1, 'c'), ('2024/01/31 10:00:01', 1, 'd')"_s);
        vc_users operators(program_.area);
        const auto shown = [&](const QString& user, const QString& button) {
            person::during_modal<frmconduser>([=](frmconduser& dialog) {
                person::type(dialog, {{u"txtsdate"_s, u"2024-01-31 08：00：00"_s},
                                      {u"txtedate"_s, u"2024-01-31 10:00:00"_s},
                                      {u"txtuserid"_s, user}});
                if (user == u"0") { // then one is picked
                    person::during_modal<frmref>(
                        [](frmref& picker) { person::click(picker, u"cmdok"_s); });
                    person::click(dialog, u"cmdref"_s);
                }
                person::click(dialog, button);
            });
            open_list_window(program_.area, operators, u"operateview"_s);
            const QWidget& list = *program_.area.activeSubWindow()->widget();
            const int last = grid_of(list).model()->rowCount() - 1;
            grid_of(list).selectRow(last);
            person::click(list, u"refresh"_s);
            // The row stays, though one operator stands in many.
            return grid_of(list).row() == last ? column_of(list, 3) : u"another row"_s;
        };
        QCOMPARE(shown({}, u"cmdOK"_s), u"a b c"_s);
        QCOMPARE(shown(u"7"_s, u"cmdOK"_s), u"b"_s);
        QCOMPARE(shown(u"0"_s, u"cmdOK"_s), u"a c"_s);
        QCOMPARE(shown({}, u"cmdCancel"_s), QString()); // nothing happened today
    }

    void shows_no_password() {
        test_database::execute(
            u"insert into viewitems (ViewNo, keyword, caption, Visible, pos) values ('VUsers', 'PassWord', '口令', -1, 9)"_s);
        const frmdatagrid& list = program_.list(u"mnuSysUSer"_s);
        QCOMPARE(grid_of(list).model()->columnCount(), 2); // nor is it searched or sorted by
        data_grid grid;
        spListHeaders headers;
        headers.Add({.key = u"PASSWORD"_s});
        apply_view(headers, grid);
        QVERIFY(grid.isColumnHidden(0));
    }

    void chooses_columns_and_their_order() {
        const QString layout =
            u"select keyword, pos, Visible from viewitems where ViewNo='v_smsm' order by pos"_s;
        test_database::execute(u"update viewitems set CanSet=0 where keyword='mid'"_s);
        const frmdatagrid& list = open();
        for (const auto& [end, is_hidden] :
             {std::pair(u"cmdCancel"_s, false), std::pair(u"cmdOK"_s, true)}) {
            person::during_modal<frmSetList>([&end = end](frmSetList& editor) {
                person::click(editor, u"cmdUP"_s);                // the first row stays
                QTest::keyClick(&grid_of(editor), Qt::Key_Space); // and cannot be hidden
                person::click(editor, u"cmdDown"_s);
                person::click(editor, u"cmdDown"_s); // nor can the last row go on
                grid_of(editor).selectRow(0);
                QTest::keyClick(&grid_of(editor), Qt::Key_Return);
                QCOMPARE(column_of(editor, 0) + column_of(editor, 1), u"短语 编号  √"_s);
                person::click(editor, end);
            });
            person::click(list, u"setfield"_s);
            QCOMPARE(grid_of(list).isColumnHidden(0), is_hidden);
        }
        QCOMPARE(column_of(list, 0), u"B a c A"_s);
        QCOMPARE(list.value(u"mid"_s), u"1"_s);
        QCOMPARE(test_database::rows(layout), (QStringList{u"mid|1|-1"_s, u"text|2|-1"_s}));
        person::click(list, u"Save"_s);
        QCOMPARE(test_database::rows(layout), (QStringList{u"text|1|0"_s, u"mid|2|-1"_s}));
        test_database::execute(
            u"update viewitems set pos=3-pos, Visible=-1, CanSet=-1 where ViewNo='v_smsm'"_s);
    }

    void one_column_stays_visible() {
        person::during_modal<frmSetList>([](frmSetList& editor) {
            for (int row = 0; row < 2; ++row) {
                grid_of(editor).selectRow(row);
                QTest::keyClick(&grid_of(editor), Qt::Key_Space);
            }
            person::expect_box(u"提示"_s, u"至少要显示一列，请检查！"_s);
            person::click(editor, u"cmdOK"_s);
            QVERIFY(editor.isVisible() && !editor.confirmed);
            person::click(editor, u"cmdCancel"_s);
        });
        person::click(open(), u"setfield"_s);
    }

    void keeps_its_layout() {
        const QString layout =
            u"select Width, CondValue2 from viewitems where ViewNo='v_smsm' order by pos"_s;
        test_database::execute(
            u"update viewitems set Visible=0, CondValue2='x' where ViewNo='v_smsm' and pos=1"_s);
        const frmdatagrid& list = open();
        grid_of(list).setColumnWidth(1, 200);
        person::click(list, u"Save"_s);
        const QString saved = QString::number(200 * 1440 / list.logicalDpiX());
        QCOMPARE(test_database::rows(layout), (QStringList{u"900|x"_s, saved + u'|'}));
        QCOMPARE(grid_of(open()).columnWidth(1), 200);

        test_database::execute(u"delete from viewitems where ViewNo='v_smsm' and pos=2"_s);
        grid_of(list).setColumnHidden(0, false);
        grid_of(list).setColumnWidth(0, 300);
        expect_refusal(u"数据库操作失败。\n\nthere is no current row"_s, u"系统提示"_s);
        person::click(list, u"Save"_s);
        QCOMPARE(test_database::rows(layout), QStringList{u"900|x"_s});

        test_database::execute(u"delete from viewdef where ViewNo='v_smsm'"_s);
        const frmdatagrid& unknown = open();
        QCOMPARE(grid_of(unknown).model()->columnCount(), 0);
        person::click(unknown, u"Save"_s);
        QCOMPARE(test_database::rows(layout), QStringList{u"900|x"_s});
    }
};

QTEST_MAIN(test_list_window)
#include "test_list_window.moc"
