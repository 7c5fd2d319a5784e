// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/client.h"
#include "app/frmMain.h"
#include "data/strconn.h"
#include "listview/frmdatagrid.h"
#include "tests/support/person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

// The client as it is delivered, but for the length of its timers, in a process that may be killed.
// Its arguments are FOLDER and what to do: "start", "group", or TIMEOUT_MS [TEXT] to send messages
// and, at a word on standard input, save the text as a phrase or, without one, close.

namespace {

void tell(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

/// Answers the phrase's dialog: types the text once, then presses "保存" until it is not refused,
/// and tells what every box says.
void expect_phrase(const QString& text, bool is_typed = false) {
    person::expect_modal("frmSmsm", [=](QWidget& dialog) {
        if (!is_typed) {
            person::type(dialog, u"txtText"_s, text);
            tell(u"typed"_s);
            std::getchar();
        }
        person::during_modal<QMessageBox>([text](QMessageBox& box) {
            const bool saved = box.windowTitle() == u"保存成功";
            if (!saved) {
                expect_phrase(text, true);
            }
            tell(box.windowTitle() + u'|' + box.text());
            QTest::mouseClick(box.button(saved ? QMessageBox::No : QMessageBox::Ok),
                              Qt::LeftButton);
        });
        person::click(dialog, u"cmdok"_s);
    });
}

/// Does not wait for an answer to what was taken before the link was up. Ends the process when the
/// link is in error, which only a new start mends.
void watch(dispatch_engine& engine, QTimer& timer) {
    const auto is_up = [&engine] {
        return engine.Winsock1.State() == Winsock::StateEnum::connected;
    };
    static bool unanswerable = !engine.sendready();
    QObject::connect(&engine.Timer1, &IntervalTimer::Timer, &timer, [&engine, is_up] {
        unanswerable = unanswerable || (!is_up() && !engine.sendready());
    });
    timer.callOnTimeout(&engine, [&engine, is_up] {
        if (is_up() && std::exchange(unanswerable, false)) {
            emit engine.Timer2.Timer();
        }
        if (engine.Winsock1.State() == Winsock::StateEnum::error) {
            std::_Exit(EXIT_FAILURE);
        }
    });
    timer.start(1);
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString& job = arguments.at(2);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, arguments.at(1));
    set_up_toolkit();
    QApplication::setQuitOnLastWindowClosed(false);
    const auto log_in = [](QWidget& dialog) { person::press_key(dialog, Qt::Key_Return); };
    person::expect_modal("frmLogin", log_in);
    tell(u"begin"_s);
    if (start_session(arguments.at(1))) {
        return EXIT_FAILURE;
    }
    tell(u"logged in"_s);
    if (job == u"start" || job == u"group") {
        c_gsendsms sends;
        sends.connection = strconn;
        const auto now = system_clock();
        const bool done = job == u"start" || sends.addrec(u"节日快乐"_s, 0, true, -1, now, now);
        tell(done ? u"done"_s : u"failed"_s);
        return EXIT_SUCCESS;
    }
    client program;
    frmMain& window = program.open_main_window();
    window.engine().Timer1.set_Interval(100);
    window.engine().Timer2.set_Interval(job.toInt());
    QTimer watcher;
    watch(window.engine(), watcher);
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &window, &QWidget::close);
    if (arguments.size() > 3) {
        input.setEnabled(false);
        expect_phrase(arguments.at(3));
        person::choose(window, u"mnuCreTech"_s);
        QTimer::singleShot(0, window.findChild<frmdatagrid*>(),
                           [&] { person::click(*window.findChild<frmdatagrid*>(), u"Add"_s); });
    }
    return QApplication::exec();
}
