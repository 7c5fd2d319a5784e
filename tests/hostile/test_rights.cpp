// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/screens/screen_fixture.h"

#include <QAction>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

// Way:right:what comes up, a dialog or a list. A way is a menu item, or what is done in a list that
// is open already: the menu asks for rights, nothing else does, so what is open stays usable.
const QStringList ways =
    u"mnuSysUSer:1:list mnuSysRight:1:frmRights mnucusclass:2:list mnuProject:2:list "
    u"mnugroup:2:list mnuCreTech:2:list mnusend:2:list mnuTIMEC:2:list mnunewcustomer:2:list "
    u"mnuPara:2:FrmParameter mnuChgPassword::frmuser mnuHelpAbout::frmAbout mnuHelpContents:: "
    u"mnuWindowCascade:: mnuWindowTileHorizontal:: mnuWindowTileVertical:: "
    u"mnuWindowArrangeIcons:: Add::frmSmsm Edit::frmSmsm Delete::QMessageBox find::frmFind "
    u"sort::frmSort setfield::frmSetList refresh:: Save:: row::frmSmsm"_s.split(u' ');

// Operator:rights:title of the refusal; -1 has logged out. The rights of operator 5 are withdrawn
// after the login, and last until the next one.
const QStringList sessions = u"1:12: 2:1:提示 3:2:提示 4:: 5:12: 0:: -1::提示"_s.split(u' ');

} // namespace

/// Who may do what, whichever way they try.
class test_rights : public QObject {
    Q_OBJECT

    screen_fixture program_;
    frmdatagrid& list_ = program_.list(u"mnuCreTech"_s);

    void log_in(int userid) {
        test_database::execute(u"insert or ignore into smsmodels values (1, 'a')"_s);
        test_database::execute(u"insert into rights (userid, funid) values (5, 1), (5, 2)"_s);
        curuser->set_userid(static_cast<qint16>(qAbs(userid)));
        if (userid < 0) {
            curuser->logout();
        }
        test_database::execute(u"delete from rights where userid=5"_s);
        person::click(list_, u"refresh"_s);
    }

    /// By the mouse, or by the keys as far as there are any.
    void go(const QString& way, bool by_keys) {
        program_.area.setActiveSubWindow(qobject_cast<QMdiSubWindow*>(list_.parentWidget()));
        program_.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&program_.window));
        data_grid& grid = grid_of(list_);
        grid.setFocus();
        const auto* button = list_.findChild<QAction*>(way);
        if (way.startsWith(u"mnu")) {
            person::choose(program_.window, way);
        } else if (way == u"row" && !by_keys) {
            person::double_click(grid, grid.row());
        } else if (way == u"row") {
            person::press_key(grid, Qt::Key_Return);
        } else if (by_keys && !button->shortcut().isEmpty()) {
            QTest::keySequence(program_.window.windowHandle(), button->shortcut());
        } else {
            person::click(list_, way);
        }
    }

private slots:
    static void asks_for_its_right_data() {
        QTest::addColumn<QStringList>("way");
        for (const QString& way : ways) {
            QTest::newRow(qPrintable(way)) << way.split(u':');
        }
        test_database::execute(u"insert into users (username) values (''), (''), (''), ('')"_s);
        test_database::execute(
            u"insert into rights (userid, funid) values (2, 1), (3, 2), (0, 1), (0, 2)"_s);
    }

    void asks_for_its_right() {
        QFETCH(const QStringList, way);
        const QByteArray opens = way[2].toLatin1();
        for (qsizetype i = 0; i < 2 * sessions.size(); ++i) {
            const QStringList session = sessions[i / 2].split(u':');
            log_in(session[0].toInt());
            const bool is_allowed = session[1].contains(way[1]);
            if (!is_allowed) {
                person::expect_box(session[2], u"你没有权限操作这项功能!"_s);
            } else if (opens == "frmuser" && session[0].toInt() <= 0) {
                person::expect_box(u"修改错误"_s, u"不能修改已经存在的用户"_s);
            } else if (!opens.isEmpty() && opens != "list") {
                person::expect_modal(opens.constData(), [](QWidget& dialog) { dialog.close(); });
            }
            const qsizetype windows = program_.area.subWindowList().size();
            go(way[0], i % 2 == 1);
            QVERIFY2(person::all_answered(), qPrintable(session[0]));
            const qsizetype opened = program_.area.subWindowList().size() - windows;
            QCOMPARE(opened, is_allowed && opens == "list" ? 1 : 0);
            QCOMPARE(test_database::rows(u"select mid from smsmodels"_s).size(),
                     way[0] == u"Delete" ? 0 : 1);
        }
    }

    void is_asked_of_every_item() {
        const QString known = u" logout: mnuSysExit: "_s + ways.join(u' ');
        for (const QAction* menu : program_.window.menuBar()->actions()) {
            for (const QAction* item : menu->menu()->actions()) {
                const bool is_open = menu->isEnabled() && item->isEnabled() && !item->isSeparator();
                QCOMPARE(known.contains(u" %1:"_s.arg(item->objectName())), is_open);
            }
        }
    }
};

QTEST_MAIN(test_rights)
#include "test_rights.moc"
