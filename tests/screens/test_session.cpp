// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/application_title.h"
#include "app/frmAbout.h"
#include "app/frmLogin.h"
#include "app/frmserver.h"
#include "directory/frmSmsm.h"
#include "platform/settings_store.h"
#include "platform/widgets/msgbox.h"
#include "tests/screens/screen_fixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTcpServer>
#include <QToolButton>

#include <csignal>
#include <latch>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

QString setting(const QString& key) {
    return settings_store::get(application_title(), settings_section(), key, u"none"_s);
}

void set_setting(const QString& key, const QString& value) {
    settings_store::save(application_title(), settings_section(), key, value);
}

/// What is typed into the login, the stored password (a literal), and the error that comes of it:
/// "box" for the login's own.
struct attempt {
    QString name;
    QString typed;
    QString stored;
    QString error;
};

} // namespace

/// From the login to the end of the main window: who may do what, and where the window stands.
class test_session : public QObject {
    Q_OBJECT

    std::unique_ptr<screen_fixture> program_;

private slots:
    void init() { program_ = std::make_unique<screen_fixture>(); }

    void cleanup() {
        QVERIFY(person::all_answered());
        program_.reset();
        releaseuser();
    }

    void logs_in_data() {
        QTest::addColumn<attempt>("tried");
        const QString me = u"valdrine"_s;
        const QString box = u"box"_s;
        QTest::newRow("no password") << attempt{me, {}, u"''"_s, {}};
        QTest::newRow("blanks") << attempt{me, u"  "_s, u"''"_s, {}};
        QTest::newRow("wide blank") << attempt{me, u"\u3000"_s, u"''"_s, box};
        QTest::newRow("any case") << attempt{u"VALDRINE"_s, u"Pass"_s, u"'pASS'"_s, {}};
        QTest::newRow("blank before name") << attempt{u" valdrine"_s, {}, u"''"_s, box};
        QTest::newRow("needs one") << attempt{me, {}, u"'y'"_s, box};
        QTest::newRow("Null") << attempt{
            me,
            {},
            u"null"_s,
            u"数据的格式或者范围不正确。\n\ninvalid use of Null\n\n程序将退出。"_s};
    }

    void logs_in() {
        QFETCH(const attempt, tried);
        const bool is_refused = tried.error == u"box"_s;
        test_database::execute(u"update users set password="_s + tried.stored);
        curuser->logout();
        frmLogin login;
        login.show();
        person::type(login, {{u"txtUserName"_s, tried.name}, {u"txtPassword"_s, tried.typed}});
        if (is_refused) {
            person::expect_box(u"登录错误"_s, u"用户名称或者口令输入错误，请重新输入！"_s,
                               QMessageBox::Ok, QMessageBox::NoIcon);
        } else if (!tried.error.isEmpty()) {
            expect_refusal(tried.error, u"系统提示"_s);
        }
        person::click(login, u"cmdOK"_s);
        QCOMPARE(login.loginok, tried.error.isEmpty());
        QCOMPARE(login.failed, !tried.error.isEmpty() && !is_refused);
        QCOMPARE(login.isVisible(), is_refused);
        const auto* focus = qobject_cast<QLineEdit*>(login.focusWidget());
        QVERIFY(!is_refused || (focus->objectName() == u"txtPassword"_s &&
                                focus->selectedText().size() == tried.typed.size()));
    }

    void stays_logged_out_when_nobody_logs_in() {
        const frmMain& window = program_->window;
        static_cast<void>(program_->list(u"mnuSysUSer"_s));
        person::choose(window, u"logout"_s);
        QTRY_VERIFY(program_->area.subWindowList().isEmpty());
        person::during_modal<frmLogin>(
            [](frmLogin& login) { person::click(login, u"cmdCancel"_s); });
        person::choose(window, u"logout"_s);
        QCOMPARE(person::text_of(window, u"Panel2"_s), u"操作员："_s);
        QCOMPARE(person::find<QAction>(window, u"logout"_s).text(), u"注册"_s);
        // A name is no markup.
        QCOMPARE(person::find<QLabel>(window, u"Panel2"_s).textFormat(), Qt::PlainText);
    }

    void keeps_the_name_of_a_server_that_answers() {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString name = u"127.0.0.1,%1"_s.arg(server.serverPort());
        person::during_modal<frmserver>([&](frmserver& dialog) {
            for (const auto& wrong : {u"127.0.0.1,1"_s, u""_s, u"127.0.0.1,x"_s}) {
                person::type(dialog, u"Text1"_s, wrong);
                person::expect_box(u"系统提示"_s,
                                   u"服务器连接不成功，请查看服务器名是否输入错误！"_s);
                person::click(dialog, u"cmdOK"_s);
                QVERIFY(dialog.isVisible());
            }
            QCOMPARE(setting(u"connection"_s), u"none"_s);
            person::type(dialog, u"Text1"_s, name);
            person::expect_box(u"系统提示"_s, u"服务器已经设置好，下次进入系统才可生效！"_s);
            person::click(dialog, u"cmdOK"_s);
        });
        program_->window.setserver();
        QCOMPARE(setting(u"connection"_s), name);
    }

    void tells_about_itself() {
        class fake_registry : public Registry {
            [[nodiscard]] std::optional<value> query(RootEnum /*root*/, const QString& /*key*/,
                                                     const QString& name) const override {
                return name == u"text"_s     ? value{TypeEnum::string, QByteArray("abc\0def", 8)}
                       : name == u"number"_s ? value{TypeEnum::dword, "\x78\x56\x34\x12"}
                                             : std::optional<value>();
            }
        };
        const fake_registry registry;
        const frmAbout about(registry);
        for (const auto& [name, text] : {std::pair(u"text"_s, u"abc"_s),
                                         {u"none"_s, QString()},
                                         std::pair(u"number"_s, QString::number(0x12345678))}) {
            QString result = u"old"_s;
            QCOMPARE(about.GetKeyValue(Registry::RootEnum::local_machine, {}, name, result),
                     !text.isEmpty());
            QCOMPARE(result, text);
        }
        person::during_modal<frmAbout>([](frmAbout& dialog) {
            person::expect_box(application_title(),
                               u"System Information Is Unavailable At This Time"_s, QMessageBox::Ok,
                               QMessageBox::NoIcon);
            person::click(dialog, u"cmdSysInfo"_s);
            QCOMPARE(person::text_of(dialog, u"lblVersion"_s), u"版本：1.0.1 belta2"_s);
            QVERIFY(person::text_of(dialog, u"lblDisclaimer"_s)
                        .contains(QRegularExpression(u"^安装的版本：\\d+\\.\\d+\\.\\d+\\n"_s)));
            person::click(dialog, u"cmdOK"_s);
        });
        person::choose(program_->window, u"mnuHelpAbout"_s);
    }

    void keeps_its_place() {
        frmMain& window = program_->window;
        const auto next = [](const QString& left, const QString& width = u"6500"_s) {
            set_setting(u"MainLeft"_s, left);
            set_setting(u"MainWidth"_s, width);
            curuser = std::make_unique<rsclsuser>();
            return client().open_main_window().frameGeometry();
        };
        window.showMinimized();
        window.close();
        QCOMPARE(setting(u"MainLeft"_s), u"none"_s);
        QCOMPARE(next(u"600"_s).x(), qRound(600 * window.logicalDpiX() / 1440.0));
        person::expect_box(u"系统提示"_s, u"窗口位置的设置不是数字，已恢复为默认值。"_s);
        QCOMPARE(next(u"左"_s).x(), qRound(1000 * window.logicalDpiX() / 1440.0));
        const QRect screen = window.screen()->availableGeometry();
        for (const auto& [left, width] :
             {std::pair(u"15000"_s, u"6500"_s), {u"-9000"_s, u"6500"_s}, {u"0"_s, u"90000"_s}}) {
            QVERIFY2(screen.contains(next(left, width)), qPrintable(left)); // of a larger one
        }
    }

    void ends_in_good_order_when_asked_data() {
        QTest::addColumn<int>("wish");
        QTest::newRow("shut down") << SIGTERM;
        QTest::newRow("logged off") << SIGHUP;
    }

    void ends_in_good_order_when_asked() {
        QFETCH(const int, wish);
        std::latch time_to_end(1);
        std::thread other([&] { // the toolkit has threads as well
            time_to_end.wait();
            std::raise(wish);
        });
        QObject owner;
        end_when_asked(owner);
        person::during_modal<frmAbout>([&](frmAbout&) { time_to_end.count_down(); });
        person::choose(program_->window, u"mnuHelpAbout"_s);
        QTRY_VERIFY(!program_->window.isVisible());
        other.join();
        QVERIFY(setting(u"MainLeft"_s) != u"none"_s);
    }

    void shows_the_whole_menu() {
        const auto& behind =
            person::find<QToolButton>(program_->window, u"qt_menubar_ext_button"_s);
        program_->window.resize(1, 300);
        QTRY_VERIFY(!behind.isVisible());
        static_cast<void>(program_->list(u"mnuProject"_s)); // puts its buttons beside it
        QTRY_VERIFY(program_->window.menuBar()->cornerWidget() && !behind.isVisible());
    }

    void goes_at_once_and_says_nothing_more() {
        person::during_modal<frmSmsm>([this](frmSmsm& dialog) {
            program_->window.leave(); // as at the end of the user's session
            QVERIFY(!dialog.isVisible() && !program_->window.isVisible());
            QVERIFY(setting(u"MainLeft"_s) != u"none");
            QVERIFY(!msgbox::yes_no(u"?"_s, {})); // nor does it ask for an answer
        });
        const frmdatagrid& list = program_->list(u"mnuCreTech"_s);
        person::click(list, u"Add"_s);
        QVERIFY(curuser);
    }

    void tiles_windows() {
        QVERIFY(QTest::qWaitForWindowActive(&program_->window));
        static_cast<void>(program_->list(u"mnuCreTech"_s));
        QMdiSubWindow& icon = *program_->area.activeSubWindow();
        icon.showMinimized();
        static_cast<void>(program_->list(u"mnuProject"_s));
        static_cast<void>(program_->list(u"mnuCreTech"_s));
        auto windows = program_->area.subWindowList();
        windows.removeOne(&icon);
        const QSize room = program_->area.viewport()->size() - QSize(0, icon.height());
        for (const auto& [item, both] :
             {std::pair(u"mnuWindowTileHorizontal"_s, room + QSize(room.width(), 0)),
              std::pair(u"mnuWindowTileVertical"_s, room + QSize(0, room.height()))}) {
            person::choose(program_->window, item);
            QCOMPARE(windows[0]->size() + windows[1]->size(), both);
            QVERIFY(!windows[0]->geometry().intersects(windows[1]->geometry()));
            QVERIFY(!icon.geometry().intersects(windows[0]->geometry() | windows[1]->geometry()));
            QVERIFY(program_->window.focusWidget()->inherits("data_grid"));
        }
        person::choose(program_->window, u"mnuWindowCascade"_s);
        QCOMPARE(windows[0]->size(), room * 3 / 4);
        QVERIFY(windows[0]->pos() != windows[1]->pos());
        windows[0]->setGeometry(program_->area.rect());
        windows[0]->raise();
        icon.move(200, 30);
        person::choose(program_->window, u"mnuWindowArrangeIcons"_s);
        QCOMPARE(icon.pos(), QPoint(0, room.height()));
        QCOMPARE(program_->area.subWindowList(QMdiArea::StackingOrder).last(), &icon);
    }

    void refuses_what_is_no_database() {
        const QTemporaryDir folder;
        const auto start = [](const QString& directory, const QString& error) {
            set_setting(u"connection"_s, u"server"_s);
            expect_refusal(error.arg(directory + u"/sms.old.mdb"_s) + u"\n\n程序将退出。"_s,
                           u"系统提示"_s);
            QCOMPARE(start_session(directory), std::optional(1));
            QCOMPARE(setting(u"connection"_s), QString()); // no server name outlives a restart
        };
        start(folder.filePath(u"missing"_s),
              u"不能打开数据库文件，请检查文件和目录的权限：\n%1\n\n此文件或目录不存在"_s);
        const QList<std::pair<QByteArray, QString>> files{
            {QByteArray(4096, 'x'),
             u"数据库文件已经损坏，或者不是本系统的数据库，请用备份恢复：\n%1"_s},
            {QByteArray("\0\1\0\0Standard Jet DB\0", 20),
             u"数据库文件是旧的格式，请先用导入工具“smsdb import”把它转换成新的数据库，原文件没有改动：\n%1"_s}};
        for (const auto& [content, error] : files) {
            QFile file(folder.filePath(u"sms.old.mdb"_s));
            QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
            QVERIFY(file.write(content) == content.size() && file.flush());
            person::during_modal<frmLogin>(
                [](frmLogin& login) { person::click(login, u"cmdOK"_s); });
            start(folder.path(), error);
            QVERIFY(file.seek(0) && file.readAll() == content);
        }
    }
};

QTEST_MAIN(test_session)
#include "test_session.moc"
