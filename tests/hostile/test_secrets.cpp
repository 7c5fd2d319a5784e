// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmLogin.h"
#include "data/strconn.h"
#include "gateway/options.h"
#include "operators/frmRights.h"
#include "operators/frmuser.h"
#include "platform/connection_string.h"
#include "tests/screens/screen_fixture.h"

#include <QAccessible>
#include <QDirIterator>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString secret = u"geheim-7391"_s;
QString seen; ///< everything that was shown, read aloud, logged or left in a file

void look_at(const QAccessibleInterface& part) {
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
        seen += part.text(kind) + u'\n';
    }
    for (int i = 0; i < part.childCount(); ++i) {
        look_at(*part.child(i));
    }
}

void look_around() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        look_at(*QAccessible::queryAccessibleInterface(window));
    }
}

/// The dialog of an operator comes up, and the box that then tells how it ended.
void answer(const QString& name, const QString& again) {
    person::during_modal<frmuser>([=](frmuser& dialog) {
        person::type(dialog, u"txtUserName"_s, name);
        person::type(dialog, u"txtPassword"_s, secret);
        person::type(dialog, u"txtconpass"_s, again);
        look_around();
        person::click(dialog, u"cmdok"_s);
    });
    person::during_modal<QMessageBox>([](QMessageBox& box) { box.reject(); });
}

} // namespace

/// Who may read what is nobody else's business.
class test_secrets : public QObject {
    Q_OBJECT

private slots:
    static void files_are_for_their_owner() {
        const mode_t mask = ::umask(0);
        const test_database database;
        test_database::execute(u"delete from users"_s);
        ::umask(mask);
        for (const QString& side : {QString(), u"-wal"_s, u"-shm"_s}) {
            struct stat found = {};
            QCOMPARE(::stat(qPrintable(database.path() + side), &found), 0);
            QCOMPARE(found.st_mode & 0777, 0600);
        }
    }

    static void the_gateway_keeps_to_this_machine() {
        const auto wanted = gateway::parse_options({u"smsgateway"_s});
        QCOMPARE(std::get<gateway::options>(wanted).address, QHostAddress::LocalHost);
    }

    static void passwords_are_told_nowhere() {
        screen_fixture program;
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { seen += text; });
        person::set_observer([](QWidget&) { look_around(); });
        test_database::execute(u"update users set password='%1'"_s.arg(secret));
        for (const QString& typed : {secret + u'x', secret + u'\''}) {
            frmLogin login;
            login.show();
            person::type(login, u"txtPassword"_s, typed);
            person::during_modal<QMessageBox>([](QMessageBox& box) { box.reject(); });
            person::click(login, u"cmdOK"_s);
            look_around();
        }
        answer({}, secret);
        answer(u"a"_s, secret + u' ');
        answer(u"a'"_s, secret);
        answer(u"a"_s, secret);
        person::click(program.list(u"mnuSysUSer"_s), u"Add"_s);
        answer(u"b"_s, secret);
        person::choose(program.window, u"mnuChgPassword"_s);
        person::during_modal<frmRights>([](frmRights& editor) { editor.reject(); });
        person::choose(program.window, u"mnuSysRight"_s);
        QVERIFY(person::all_answered());
        program.window.close();
        person::set_observer({});
        qInstallMessageHandler(before);
        QDirIterator files(QFileInfo(data_source(strconn)).path(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!files.fileName().startsWith(u"sms.old.mdb") && file.open(QIODevice::ReadOnly)) {
                seen += QString::fromUtf8(file.readAll());
            }
        }
        for (const auto& sign : {u"MainLeft"_s, u"valdrine"_s, u"操作员不能保存"_s}) {
            QVERIFY2(seen.contains(sign), qPrintable(sign)); // it was really looked there
        }
        QVERIFY(!seen.contains(secret));
    }
};

QTEST_MAIN(test_secrets)
#include "test_secrets.moc"
