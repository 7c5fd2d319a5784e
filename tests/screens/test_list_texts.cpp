// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/forms/row_dialog.h"
#include "listview/frmref.h"
#include "platform/widgets/msgbox.h"
#include "tests/screens/screen_fixture.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

void save_as(const QString& path) {
    person::during_modal<QFileDialog>([=](QFileDialog& dialog) {
        QCOMPARE(dialog.labelText(QFileDialog::FileName), u"文件名称(&N)："_s);
        person::type(dialog, u"fileNameEdit"_s, path);
        person::press_key(dialog, Qt::Key_Return);
    });
}

} // namespace

/// Finding, reading, copying and exporting what stands in lists.
class test_list_texts : public QObject {
    Q_OBJECT

    screen_fixture program_;

    frmdatagrid& received() { return program_.list(u"mnunewcustomer"_s); }

private slots:
    void init() { test_database::execute(u"delete from recvedsms"_s); }

    void cleanup() {
        program_.area.closeAllSubWindows();
        QVERIFY(person::all_answered());
    }

    void picks_as_one_types() {
        const frmdatagrid& messages = program_.list(u"mnusend"_s);
        store_60_phrases();
        test_database::execute(u"insert into smsmodels values (70, '晚安，明天见')"_s);
        person::during_modal<frmSendsms>([](frmSendsms& dialog) {
            person::during_modal<frmref>([](frmref& picker) {
                data_grid& grid = grid_of(picker);
                const auto& confirm = person::find<QPushButton>(picker, u"cmdok"_s);
                QCOMPARE(picker.focusWidget()->objectName(), u"txtFind"_s);
                click_heading(grid, 1);
                click_heading(grid, 1);
                for (const auto& [text, key] :
                     {std::pair(u"TEXT 1"_s, u"54"_s), std::pair(u"9"_s, u"49"_s),
                      std::pair(u"明天"_s, u"70"_s)}) {
                    person::type(picker, u"txtFind"_s, text);
                    QCOMPARE(grid.text(1), key);
                }
                person::type(picker, u"txtFind"_s, u"none"_s);
                QVERIFY(!confirm.isEnabled()); // the marked row is not what was asked for
                person::press_key(picker, Qt::Key_Down);
                QCOMPARE(grid.text(1), u"60"_s);
                QVERIFY(confirm.isEnabled());
                person::type(picker, u"txtFind"_s, u"text 1"_s);
                person::press_key(picker, Qt::Key_F3);
                person::press_key(picker, Qt::Key_Return);
            });
            person::click(dialog, u"cmdrefsms"_s);
            QCOMPARE(person::text_of(dialog, u"txtSms"_s), u"text 11"_s);
            person::click(dialog, u"cmdcancel"_s);
        });
        person::click(messages, u"Add"_s);
    }

    void offers_what_works_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("works");
        const QString rest = u"Delete find sort setfield refresh Save Exit"_s;
        QTest::newRow("phrases") << u"mnuCreTech"_s << u"Add Edit "_s + rest;
        QTest::newRow("messages") << u"mnusend"_s << u"Add "_s + rest;
        QTest::newRow("group sends") << u"mnuTIMEC"_s << u"Add "_s + rest;
        QTest::newRow("received") << u"mnunewcustomer"_s << rest;
    }

    void offers_what_works() {
        QFETCH(const QString, item);
        QFETCH(const QString, works);
        const frmdatagrid& list = program_.list(item);
        QStringList enabled;
        for (const QAction* tool : person::find<QToolBar>(list, u"Toolbar1"_s).actions()) {
            enabled += tool->isEnabled() && !tool->isSeparator() ? QStringList(tool->objectName())
                                                                 : QStringList();
        }
        QCOMPARE(enabled.join(u' '), works);
        for (const QString& tool : {u"Add"_s, u"Edit"_s, u"Delete"_s}) {
            const auto& menu = grid_of(list).actions();
            QCOMPARE(std::any_of(menu.begin(), menu.end(),
                                 [&](const QAction* one) { return one->objectName() == tool; }),
                     enabled.contains(tool));
        }
    }

    void shows_and_copies_whole_texts() {
        store_received(1, u"first line\nsecond <b>line"_s);
        frmdatagrid& list = received();
        data_grid& grid = grid_of(list);
        for (const auto& open : {std::function([&] { person::double_click(grid, 0); }),
                                 std::function([&] { person::press_key(list, Qt::Key_Return); })}) {
            person::during_modal<row_dialog>([](row_dialog& dialog) {
                QCOMPARE(person::text_of(dialog, dialog.focusWidget()->objectName()),
                         u"first line\nsecond <b>line"_s);
                QCOMPARE(dialog.findChildren<QLineEdit*>()[2]->text(), u"139"_s);
                person::press_key(dialog, Qt::Key_Escape);
            });
            open();
        }
        const auto tip_over = [&grid](int column) {
            const QPoint place = grid.visualRect(grid.model()->index(0, column)).center();
            QHelpEvent asks(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
            QApplication::sendEvent(grid.viewport(), &asks);
            return QToolTip::text();
        };
        QVERIFY(tip_over(3).contains(u"second &lt;b&gt;line"_s));
        person::choose(list, u"lines3"_s); // then there is room
        tip_over(3);
        QTRY_VERIFY(!QToolTip::isVisible());
        program_.window.activateWindow(); // a shortcut needs it
        QVERIFY(QTest::qWaitForWindowActive(&program_.window));
        person::press_key(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"1\t\t139\tfirst line second <b>line\t2024-01-31 08:00:00\t"_s);
    }

    void exports_what_is_shown() {
        const QTemporaryDir folder;
        store_received(1, u"=1+1"_s);
        store_received(2, u"a,b"_s);
        frmdatagrid& list = received();
        grid_of(list).setColumnHidden(2, true);
        click_heading(grid_of(list), 0);
        click_heading(grid_of(list), 0);
        QFile file(folder.filePath(u"list.csv"_s));
        save_as(file.fileName().chopped(4));
        person::choose(list, u"export"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(
            file.readAll(),
            u"\uFEFF编号,客户名称,短信,接收时间,已读\r\n2,,\"a,b\",2024-01-31 08:00:00,\r\n1,,'=1+1,2024-01-31 08:00:00,\r\n"_s
                .toUtf8());
        QVERIFY(!(file.permissions() & QFile::ReadOther));
        QVERIFY(person::text_of(program_.window, u"Panel1"_s).endsWith(file.fileName()));

        save_as(folder.filePath(u"none/list.csv"_s));
        person::during_modal<QMessageBox>([](QMessageBox& box) {
            QVERIFY(box.text().startsWith(u"不能写入文件，请检查文件夹的权限和磁盘空间。\n\n"_s));
            person::press_key(box, Qt::Key_Return);
        });
        person::choose(list, u"export"_s);
    }

    void a_box_has_room_for_its_title() {
        const QString title(40, u'题');
        person::during_modal<QMessageBox>([&title](QMessageBox& box) {
            const int buttons = 5 * box.fontMetrics().height(); // of the title bar
            QVERIFY(box.width() > box.fontMetrics().horizontalAdvance(title) + buttons);
            QCOMPARE(box.textFormat(), Qt::PlainText); // what a customer is called is no markup
            person::press_key(box, Qt::Key_Return);
        });
        msgbox::information(u"好"_s, title);
    }
};

QTEST_MAIN(test_list_texts)
#include "test_list_texts.moc"
