// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/application_title.h"
#include "app/client.h"
#include "platform/widgets/msgbox.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    end_when_asked(application);
    set_up_toolkit();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--cannot-start") { // the system package's launcher tells why
        msgbox::critical(arguments.value(2), application_title());
        return 0;
    }
    QApplication::setQuitOnLastWindowClosed(
        false); // the login dialog closes before the main window opens
    try {
        if (const auto status = start_session(QCoreApplication::applicationDirPath())) {
            return *status;
        }
        client program;
        program.open_main_window();
        return QApplication::exec();
    } catch (const std::exception&) {
        msgbox::plain(u"error!"_s, application_title());
        return 1;
    }
}
