// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/client.h"
#include "app/frmMain.h"
#include "tests/support/person.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

/// Runs the program from the log-in on, does the work and closes the window.
void run_program(const QString& folder, const QString& login, tour::chapter& work,
                 QProcess& gateway) {
    expect_login(login, {});
    if (start_session(folder)) {
        guide::fail(u"expected to be logged in, seen the end of the program"_s);
    }
    client program;
    frmMain& window = program.open_main_window();
    QTimer::singleShot(0, &window, [&] {
        work(window, gateway);
        choose(window, u"mnuFile"_s, u"mnuSysExit"_s);
    });
    const int status = QApplication::exec();
    guide::step(u"closed"_s, u"exit status 0"_s, {u"exit status %1"_s.arg(status)});
}

/// Starts the gateway that lies beside this program, on a port that the client can hold; it keeps
/// its messages in a folder of its own in this one.
void start_gateway(QProcess& gateway, const QString& folder) {
    gateway.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    for (int port = 32'767; port > 32'700; --port) {
        gateway.start(QCoreApplication::applicationDirPath() + u"/smsgateway"_s,
                      {u"--store"_s, folder + u"/gateway"_s, u"--no-page"_s, u"--listen"_s,
                       u"127.0.0.1:%1"_s.arg(port)});
        if (gateway.waitForReadyRead() && gateway.readLine().startsWith("listening on")) {
            return;
        }
        gateway.waitForFinished();
    }
    guide::fail(u"expected a gateway, seen: "_s + gateway.errorString());
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({u"pictures"_s, u"Save the pictures here."_s, u"folder"_s, u"build/tour"_s});
    parser.addOption({u"front"_s, u"Save the window in front alone."_s});
    parser.process(application);
    guide::start(parser.value(u"pictures"_s),
                 parser.isSet(u"front"_s) ? guide::frame::front_window : guide::frame::screen);
    person::set_observer(guide::look_at);
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QProcess gateway;
    start_gateway(gateway, folder.path());

    set_up_toolkit();
    QApplication::setQuitOnLastWindowClosed(false);
    expect_login(u"login"_s, guide::secret);
    expect_box(u"wrong-password"_s, u"登录错误|用户名称或者口令输入错误，请重新输入！"_s);
    for (const auto& [login, chapter] : {std::pair(u"second-try"_s, &tour::first_run),
                                         std::pair(u"second-start"_s, &tour::second_run),
                                         std::pair(u"third-start"_s, &tour::third_run),
                                         std::pair(u"fourth-start"_s, &tour::fourth_run)}) {
        run_program(folder.path(), login, *chapter, gateway);
    }
    guide::check_secret(folder.path());
    gateway.kill();
    gateway.waitForFinished();
    return EXIT_SUCCESS;
}
