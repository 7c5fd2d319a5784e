// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/benches.h"
#include "bench/paint_watch.h"

#include "app/client.h"
#include "app/frmMain.h"
#include "data/strconn.h"
#include "operators/rsclsuser.h"

#include <QApplication>
#include <QDialog>
#include <QTableView>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void end_after_paint(paint_watch& watch) {
    QObject::connect(&watch, &paint_watch::painted, [] { _exit(0); });
}

int probe_login(const QString& folder) {
    set_up_toolkit();
    paint_watch watch("frmLogin");
    end_after_paint(watch);
    return start_session(folder).value_or(1);
}

int probe_dialog() {
    QDialog dialog;
    dialog.resize(270, 130);
    paint_watch watch("QDialog");
    end_after_paint(watch);
    return dialog.exec();
}

/// Tells the parent when all that starting brought along is over.
int rest() {
    QTimer::singleShot(3000, [] {
        std::puts("at rest");
        std::fflush(stdout);
    });
    return QApplication::exec();
}

int probe_bare() {
    QTableView view;
    view.resize(1000, 700);
    view.show();
    return rest();
}

int probe_client(const QString& kind, const QString& folder) {
    set_up_toolkit();
    strconn = make_strconn(folder);
    curuser = std::make_unique<rsclsuser>();
    curuser->set_userid(1);
    client program;
    frmMain& window = program.open_main_window();
    if (kind == u"still") {
        window.StopTomer();
    } else if (kind == u"polling") {
        window.startTimer();
    } else {
        window.findChild<QAction*>(u"mnuProject"_s)->trigger();
    }
    return rest();
}

} // namespace

int run_probe(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QString kind = QString::fromLocal8Bit(argv[2]);
    const QString folder = QString::fromLocal8Bit(argv[3]);
    if (kind == u"dialog") {
        return probe_dialog();
    }
    if (kind == u"bare") {
        return probe_bare();
    }
    return kind == u"login" ? probe_login(folder) : probe_client(kind, folder);
}
