// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/application_title.h"
#include "app/frmAbout.h"
#include "app/frmLogin.h"
#include "app/frmserver.h"
#include "operators/frmRights.h"
#include "operators/frmuser.h"
#include "platform/settings_store.h"
#include "tests/screens/screen_fixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTcpServer>

using namespace Qt::StringLiterals;

namespace {

QString setting(const QString& key) {
    return settings_store::get(application_title(), settings_section(), key, u"none"_s);
}

void set_setting(const QString& key, const QString& value) {
    settings_store::save(application_title(), settings_section(), key, value);
}

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
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored"); // as a literal
        QTest::addColumn<QString>("error");  // "box" for the login's own
        const QString me = u"valdrine"_s;
        QTest::newRow("no password") << me << QString() << u"''"_s << QString();
        QTest::newRow("blanks") << me << u"  "_s << u"''"_s << QString();
        QTest::newRow("wide blank") << me << u"\u3000"_s << u"''"_s << u"box"_s;
        QTest::newRow("any case") << u"VALDRINE"_s << u"Pass"_s << u"'pASS'"_s << QString();
        QTest::newRow("blank before name") << u" valdrine"_s << QString() << u"''"_s << u"box"_s;
        QTest::newRow("wrong") << me << u"x"_s << u"'y'"_s << u"box"_s;
        QTest::newRow("needs one") << me << QString() << u"'y'"_s << u"box"_s;
        QTest::newRow("Null") << me << QString() << u"null"_s
                              << u"数据的格式或者范围不正确。\n\ninvalid use of Null"_s;
    }

    void logs_in() {
        QFETCH(const QString, name);
        QFETCH(const QString, typed);
        QFETCH(const QString, stored);
        QFETCH(const QString, error);
        test_database::execute(u"update users set password="_s + stored);
        curuser->logout();
        frmLogin login;
        login.show();
        person::type(login, u"txtUserName"_s, name);
        person::type(login, u"txtPassword"_s, typed);
        if (error == u"box"_s) {
            person::expect_box(u"登录错误"_s, u"用户名称或者口令输入错误，请重新输入！"_s,
                               QMessageBox::Ok, QMessageBox::NoIcon);
        } else if (!error.isEmpty()) {
            person::expect_box(u"系统提示"_s, error, QMessageBox::Ok, QMessageBox::Critical);
        }
        person::click(login, u"cmdOK"_s);
        QCOMPARE(login.loginok, error.isEmpty());
        QCOMPARE(login.failed, !error.isEmpty() && error != u"box"_s);
        QCOMPARE(login.isVisible(), error == u"box"_s);
        QVERIFY(!login.loginok || curuser->CanDo(function_id::operator_administration, true));
        const auto* focus = qobject_cast<QLineEdit*>(login.focusWidget());
        QVERIFY(!login.isVisible() || (focus->objectName() == u"txtPassword"_s &&
                                       focus->selectedText().size() == typed.size()));
    }

    void logs_out_and_in_again() {
        const QAction& item = person::find<QAction>(program_->window, u"logout"_s);
        const auto shown = [&] {
            return item.text() + person::text_of(program_->window, u"Panel2"_s);
        };
        QCOMPARE(shown(), u"注销我自己操作员：valdrine"_s);
        person::choose(program_->window, u"logout"_s);
        QCOMPARE(shown(), u"注册操作员："_s);
        for (const auto& button : {u"cmdCancel"_s, u"cmdOK"_s}) {
            person::during_modal<frmLogin>([&](frmLogin& login) { person::click(login, button); });
            person::choose(program_->window, u"logout"_s);
            QCOMPARE(shown(),
                     button == u"cmdOK"_s ? u"注消我自己操作员：valdrine"_s : u"注册操作员："_s);
        }
        // A name is no markup.
        QCOMPARE(person::find<QLabel>(program_->window, u"Panel2"_s).textFormat(), Qt::PlainText);
    }

    void maintains_operators() {
        const auto answer = [](const QString& name, const QString& password, const QString& again) {
            person::during_modal<frmuser>([=](frmuser& dialog) {
                person::type(dialog, u"txtUserName"_s, name);
                person::type(dialog, u"txtPassword"_s, password);
                person::type(dialog, u"txtconpass"_s, again);
                person::click(dialog, u"cmdok"_s);
            });
        };
        const auto refused = [](const QString& text) {
            person::expect_box(u"输入错误"_s, text, QMessageBox::Ok, QMessageBox::Critical);
        };
        const auto stored = [] {
            return test_database::rows(u"select username, password from users"_s).join(u' ');
        };
        frmdatagrid& list = program_->list(u"mnuSysUSer"_s);
        answer(u"  "_s, {}, {});
        refused(u"用户名称输入错误请检查！"_s);
        answer(u"小王"_s, u"p"_s, u"p "_s);
        refused(u"用户口令输入错误！ "_s);
        answer(u"O'Neil"_s, {}, {});
        person::expect_box(u"不能保存"_s, u"输入错误，操作员不能保存！"_s);
        answer(u"小王"_s, u" p "_s, u" p "_s);
        person::expect_box(u"创建成功"_s, u"成功创建一个新的用户，是否继续? "_s, QMessageBox::No,
                           QMessageBox::NoIcon);
        person::click(list, u"Add"_s);
        QCOMPARE(stored(), u"valdrine| 小王|p"_s);
        QCOMPARE(column_of(list, 1), u"valdrine 小王"_s);
        QCOMPARE(grid_of(list).model()->columnCount(), 2); // no password

        answer(u"王"_s, u" q "_s, u" q "_s);
        person::expect_box(u"保存成功"_s, u"成功修改了用户的信息"_s);
        grid_of(list).selectRow(1);
        person::click(list, u"Edit"_s);
        QCOMPARE(stored(), u"valdrine| 王| q "_s);
        person::expect_box(u"删除成功"_s, u"成功删除操作员，编号为:2"_s);
        person::click(list, u"Delete"_s);
        answer(u"valdrine"_s, u"new"_s, u"new"_s);
        person::expect_box(u"保存成功"_s, u"成功修改了用户的信息"_s);
        person::choose(program_->window, u"mnuChgPassword"_s);
        QCOMPARE(stored(), u"valdrine|new"_s);
    }

    void grants_and_withdraws_rights() {
        test_database::execute(u"insert into users (username) values ('小王')"_s);
        test_database::execute(u"insert into rights (userid, funid) values (2, 2), (2, 77)"_s);
        const auto rights_of = [](const QString& id) {
            return test_database::rows(
                       u"select funid from rights where userid=%1 order by funid"_s.arg(id))
                .join(u' ');
        };
        person::during_modal<frmRights>([&](frmRights& editor) {
            auto& users = person::find<DataGrid>(editor, u"dataUsers"_s);
            auto& functions = person::find<DataGrid>(editor, u"dataFuns"_s);
            const auto marks = [&functions] {
                const QAbstractItemModel& rows = *functions.model();
                return rows.index(0, 2).data().toString() + u'|' +
                       rows.index(1, 2).data().toString();
            };
            QCOMPARE(users.model()->columnCount(), 2); // no password
            QCOMPARE(marks(), u"√|√"_s);
            users.selectRow(1);
            QCOMPARE(marks(), u"|√"_s);
            QTest::keyClick(&functions, Qt::Key_Space); // the first one
            QCOMPARE(marks(), u"√|√"_s);
            QCOMPARE(rights_of(u"2"_s), u"1 2 77"_s);
            functions.selectRow(1);
            const QPoint place = functions.visualRect(functions.currentIndex()).center();
            QTest::mouseClick(functions.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(functions.viewport(), Qt::LeftButton, {}, place);
            QCOMPARE(marks(), u"√|"_s);
            QCOMPARE(rights_of(u"2"_s), u"1 77"_s);
            users.selectRow(0);
            QCOMPARE(marks(), u"√|√"_s);
            person::press_key(editor, Qt::Key_Escape);
        });
        person::choose(program_->window, u"mnuSysRight"_s);
        curuser->set_userid(2);
        QVERIFY(curuser->CanDo(function_id::operator_administration, true) &&
                !curuser->CanDo(function_id::daily_work, false));
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
        public:
            [[nodiscard]] std::optional<value> query(RootEnum /*root*/, const QString& key,
                                                     const QString& name) const override {
                if (key != u"key"_s) {
                    return std::nullopt;
                }
                return name == u"text"_s ? value{TypeEnum::string, QByteArray("abc\0def", 8)}
                                         : value{TypeEnum::dword, QByteArray("\x78\x56\x34\x12")};
            }
        };
        const auto root = Registry::RootEnum::local_machine;
        const fake_registry registry;
        frmAbout about(registry);
        QString result = u"old"_s;
        QVERIFY(!about.GetKeyValue(root, u"none"_s, u"text"_s, result) && result.isEmpty());
        QVERIFY(about.GetKeyValue(root, u"key"_s, u"text"_s, result));
        QCOMPARE(result, u"abc"_s);
        QVERIFY(about.GetKeyValue(root, u"key"_s, u"number"_s, result));
        QCOMPARE(result, QString::number(0x12345678));
        person::during_modal<frmAbout>([](frmAbout& dialog) {
            person::expect_box(application_title(),
                               u"System Information Is Unavailable At This Time"_s, QMessageBox::Ok,
                               QMessageBox::NoIcon);
            person::click(dialog, u"cmdSysInfo"_s);
            QCOMPARE(person::text_of(dialog, u"lblVersion"_s), u"版本：1.0.1 belta2"_s);
            person::press_key(dialog, Qt::Key_Return);
        });
        person::choose(program_->window, u"mnuHelpAbout"_s);
    }

    void keeps_its_place() {
        frmMain& window = program_->window;
        const auto place = [&window](int left, int top, int width, int height) {
            const double dpi = window.logicalDpiX();
            return QRect(qRound(left * dpi / 1440), qRound(top * dpi / 1440),
                         qRound(width * dpi / 1440), qRound(height * dpi / 1440));
        };
        const auto place_of_next = [] {
            curuser = std::make_unique<rsclsuser>();
            client next;
            const frmMain& opened = next.open_main_window();
            return QRect(opened.pos(), opened.size());
        };
        QCOMPARE(place_of_next(), place(1000, 1000, 6500, 6500));
        window.showMinimized();
        window.close();
        QCOMPARE(setting(u"MainLeft"_s), u"none"_s);
        window.showNormal();
        window.move(place(600, 900, 0, 0).topLeft());
        window.resize(place(0, 0, 7500, 4500).size());
        window.close();
        QCOMPARE(setting(u"MainLeft"_s), u"600"_s);
        QCOMPARE(place_of_next(), place(600, 900, 7500, 4500));
        set_setting(u"MainLeft"_s, u"左"_s);
        person::expect_box(u"系统提示"_s, u"窗口位置的设置不是数字，已恢复为默认值。"_s);
        QCOMPARE(place_of_next(), place(1000, 1000, 6500, 6500));
    }

    void tiles_windows() {
        static_cast<void>(program_->list(u"mnuProject"_s));
        static_cast<void>(program_->list(u"mnuCreTech"_s));
        const auto windows = program_->area.subWindowList();
        const QSize room = program_->area.viewport()->size();
        person::choose(program_->window, u"mnuWindowTileHorizontal"_s);
        QCOMPARE(windows[0]->size() + QSize(0, windows[1]->height()), room);
        QVERIFY(!windows[0]->geometry().intersects(windows[1]->geometry()));
        person::choose(program_->window, u"mnuWindowTileVertical"_s);
        QCOMPARE(windows[0]->size() + QSize(windows[1]->width(), 0), room);
        QVERIFY(!windows[0]->geometry().intersects(windows[1]->geometry()));
    }

    void refuses_what_is_no_database() {
        const QTemporaryDir folder;
        const auto start = [](const QString& directory, const QString& error) {
            set_setting(u"connection"_s, u"server"_s);
            person::expect_box(u"系统提示"_s, error, QMessageBox::Ok, QMessageBox::Critical);
            QCOMPARE(start_session(directory), std::optional(1));
            QCOMPARE(setting(u"connection"_s), QString()); // no server name outlives a restart
        };
        start(folder.filePath(u"missing"_s),
              u"不能打开数据库文件，请检查文件和目录的权限。\n\n此文件或目录不存在"_s);
        const QList<std::pair<QByteArray, QString>> files{
            {QByteArray(4096, 'x'),
             u"数据库文件已经损坏，或者不是本系统的数据库，请用备份恢复。"_s},
            {QByteArray("\0\1\0\0Standard Jet DB\0", 20),
             u"数据库文件是旧的格式，请先用导入工具“smsdb import”把它转换成新的数据库，原文件没有改动。"_s}};
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
