// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmFind.h"
#include "listview/frmSetList.h"
#include "tests/screens/screen_fixture.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// The row that one sees marked, when commands go by it, too.
int marked(const data_grid& grid) {
    const QModelIndexList rows = grid.selectionModel()->selectedRows();
    return rows.size() == 1 && rows.front().row() == grid.row() ? grid.row() : -1;
}

bool is_seen(const data_grid& grid, int row) {
    const QRect place = grid.visualRect(grid.model()->index(row, 0));
    return place.top() >= 0 && place.bottom() < grid.viewport()->height();
}

} // namespace

/// What is marked and seen in a long list, whatever is done in it and whoever changes its rows.
class test_list_rows : public QObject {
    Q_OBJECT

    screen_fixture program_;

    frmdatagrid& phrases() { return program_.list(u"mnuCreTech"_s); }
    frmdatagrid& received() { return program_.list(u"mnunewcustomer"_s); }

private slots:
    void init() {
        test_database::execute(u"delete from smsmodels"_s);
        test_database::execute(u"delete from recvedsms"_s);
        store_60_phrases();
    }

    void cleanup() {
        program_.area.closeAllSubWindows();
        QVERIFY(person::all_answered());
    }

    void one_row_is_always_marked() {
        frmdatagrid& list = phrases();
        data_grid& grid = grid_of(list);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                          grid.visualRect(grid.model()->index(2, 1)).center());
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          grid.visualRect(grid.model()->index(2, 1)).center());
        QCOMPARE(marked(grid), 2);
        QTest::keyClick(&grid, Qt::Key_Space, Qt::ControlModifier);
        QTest::keyClick(&grid, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(marked(grid), 3);
        person::during_modal<frmFind>([](frmFind& dialog) { person::click(dialog, u"cmdOK"_s); });
        person::expect_box(u"Information"_s, u"Cann't find! "_s);
        person::click(list, u"find"_s);
        QCOMPARE(marked(grid), 3);
        person::during_modal<frmSetList>(
            [](frmSetList& editor) { person::click(editor, u"cmdOK"_s); });
        person::click(list, u"setfield"_s);
        QCOMPARE(marked(grid), 3);
        for (const auto& [key, row] : {std::pair(Qt::Key_End, 59), std::pair(Qt::Key_Home, 0)}) {
            QTest::keyClick(&grid, key);
            QCOMPARE(marked(grid), row);
        }
    }

    void keeps_what_is_seen() {
        frmdatagrid& list = phrases();
        data_grid& grid = grid_of(list);
        grid.setColumnWidth(1, 3000);
        grid.setCurrentIndex(grid.model()->index(25, 1));
        grid.verticalScrollBar()->setValue(20);
        QTRY_VERIFY(grid.horizontalScrollBar()->maximum() > 50);
        grid.horizontalScrollBar()->setValue(50);
        const auto seen = [&grid] {
            return QList<int>{marked(grid), grid.currentIndex().column(),
                              grid.verticalScrollBar()->value(),
                              grid.horizontalScrollBar()->value()};
        };
        const QList<int> before = seen();
        QCOMPARE(before, (QList<int>{25, 1, 20, 50}));
        const auto in_dialog = [](const QString& button) {
            person::during_modal<frmSmsm>([=](frmSmsm& dialog) { person::click(dialog, button); });
        };
        person::click(list, u"refresh"_s);
        QCOMPARE(seen(), before);
        in_dialog(u"cmdcancel"_s);
        person::press_key(list, Qt::Key_Return); // edits, as a double click does
        QCOMPARE(seen(), before);
        in_dialog(u"cmdok"_s);
        person::expect_box(u"保存成功"_s, u"成功地修改了短语。 "_s);
        person::double_click(grid, 25);
        QCOMPARE(seen(), before);

        grid.verticalScrollBar()->setValue(0);
        person::during_modal<QMessageBox>([&grid](QMessageBox& box) {
            QVERIFY(is_seen(grid, 25)); // what is being deleted
            person::press_key(box, Qt::Key_Return);
        });
        person::click(list, u"Delete"_s);
        QCOMPARE(list.value(u"mid"_s), u"27"_s);

        click_heading(grid, 1);
        in_dialog(u"cmdok"_s);
        person::expect_box(u"保存成功"_s, u"成功创建一个短语信息，继续创建吗？ "_s, QMessageBox::No,
                           QMessageBox::NoIcon);
        person::click(list, u"Add"_s);
        QCOMPARE(list.value(u"mid"_s), test_database::value(u"select max(mid) from smsmodels"_s));
        QVERIFY(marked(grid) == 0 && is_seen(grid, 0)); // an empty text comes first
    }

    void sorts_by_a_heading() {
        const frmdatagrid& list = phrases();
        data_grid& grid = grid_of(list);
        const QAbstractItemModelTester tester(grid.model());
        grid.selectRow(9);
        for (const auto& [column, first] :
             {std::pair(1, u"60"_s), std::pair(1, u"27"_s), std::pair(0, u"1"_s)}) {
            click_heading(grid, column);
            QCOMPARE(grid.model()->index(0, 0).data(), first);
            QVERIFY(grid.horizontalHeader()->isSortIndicatorShown());
            QCOMPARE(grid.horizontalHeader()->sortIndicatorSection(), column);
            QCOMPARE(list.value(u"mid"_s), u"10"_s);
            QVERIFY(is_seen(grid, marked(grid)));
        }
    }

    void follows_what_the_engine_does() {
        frmdatagrid& list = received();
        auto& pause = person::find<QTimer>(program_.window, u"pause"_s);
        QCOMPARE(pause.interval(), 1000);
        pause.setInterval(0);
        store_received(1, u"a"_s);
        emit program_.window.engine().stored();
        QTRY_COMPARE(column_of(list, 3), u"a"_s);
        person::during_modal<frmFind>([&](frmFind& dialog) {
            store_received(2, u"b"_s);
            emit program_.window.engine().stored();
            QSignalSpy tried(&pause, &QTimer::timeout);
            QTRY_VERIFY(tried.count() > 1);
            QCOMPARE(column_of(list, 3), u"a"_s);
            person::press_key(dialog, Qt::Key_Escape);
        });
        person::click(list, u"find"_s);
        QTRY_COMPARE(column_of(list, 3), u"a b"_s);

        // Rows that cannot be read are told of once, and stay.
        const QString view = u"select sql from sqlite_master where name='vwrecvedsms'"_s;
        const QString sql = test_database::value(view).toString();
        test_database::execute(u"drop view vwrecvedsms"_s);
        person::expect_box(u"系统提示"_s, u"输入错误,请查看！"_s);
        for (int i = 0; i < 2; ++i) {
            QSignalSpy tried(&pause, &QTimer::timeout);
            emit program_.window.engine().stored();
            QTRY_COMPARE(tried.count(), 1);
        }
        QCOMPARE(column_of(list, 3), u"a b"_s);
        test_database::execute(sql);
        pause.setInterval(1000);
    }

    void a_cell_that_cannot_be_read_is_told_of_once() {
        frmdatagrid& list = phrases();
        Recordset rows;
        rows.OpenInMemory({u"mid"_s, u"text"_s});
        rows.AddNew();
        data_grid& grid = grid_of(list);
        grid.set_recordset(&rows);
        const QModelIndex cell = grid.model()->index(0, 1);
        rows.Close();
        person::expect_box(u"系统提示"_s, u"输入错误,请查看！"_s);
        QSignalSpy failed(&grid, &data_grid::failed);
        QVERIFY(!cell.data().isValid() && !cell.data().isValid());
        QTRY_COMPARE(failed.count(), 1);
        QTRY_VERIFY(person::all_answered());
        grid.set_recordset(nullptr);
    }

    void the_status_bar_tells_of_the_list_in_front() {
        const auto panel = [this] { return person::text_of(program_.window, u"Panel1"_s); };
        QCOMPARE(panel(), QString());
        frmdatagrid& list = phrases();
        QCOMPARE(panel(), u"第 1 条，共 60 条"_s);
        person::click(list, u"Save"_s);
        QCOMPARE(panel(), u"第 1 条，共 60 条    列表的样子已经保存"_s);
        person::press_key(list, Qt::Key_Down);
        QCOMPARE(panel(), u"第 2 条，共 60 条"_s);
        const frmdatagrid& empty = received();
        QCOMPARE(panel(), u"共 0 条"_s);
        person::click(empty, u"Exit"_s);
        QTRY_COMPARE(panel(), u"第 2 条，共 60 条"_s);
        program_.area.closeAllSubWindows();
        QCOMPARE(panel(), QString());
    }
};

QTEST_MAIN(test_list_rows)
#include "test_list_rows.moc"
