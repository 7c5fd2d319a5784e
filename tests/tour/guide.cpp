// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/tour/guide.h"

#include <QAccessible>
#include <QApplication>
#include <QDirIterator>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_run_ms = 120'000;
constexpr int longest_wait_ms = 20'000;
constexpr int longest_wait_for_frame_ms = 500;

QDir folder;
guide::frame shown = guide::frame::screen;
int number = 1; // of the step that is going on
QString told;   // everything that was shown, read aloud, logged or left in a file

void listen_to(const QAccessibleInterface& part) {
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
        told += part.text(kind) + u'\n';
    }
    for (int i = 0; i < part.childCount(); ++i) {
        if (const QAccessibleInterface* child = part.child(i)) { // an empty table may have none
            listen_to(*child);
        }
    }
}

QRect front_window() {
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* front = modal == nullptr ? QApplication::activeWindow() : modal;
    if (front == nullptr) {
        return QGuiApplication::primaryScreen()->geometry();
    }
    // A window manager tells its title bar late, where there is one.
    static_cast<void>(
        QTest::qWaitFor([front] { return front->frameGeometry() != front->geometry(); },
                        longest_wait_for_frame_ms));
    return front->frameGeometry();
}

/// From the screen, so that a window is seen above what it covers.
bool take_picture(const QString& name) {
    const QString file = QString::asprintf("%02d-%s.png", number, qPrintable(name));
    const QRect seen = shown == guide::frame::screen ? QRect() : front_window();
    return QGuiApplication::primaryScreen()->grabWindow(0).copy(seen).save(folder.filePath(file));
}

} // namespace

void guide::start(const QString& pictures, frame wanted) {
    shown = wanted;
    folder.setPath(pictures);
    folder.mkpath(u"."_s);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtFatalMsg) {
            fail(message);
        }
        told += message;
        std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    QTimer::singleShot(longest_run_ms, qApp, [] { fail(u"expected the end, not seen in time"_s); });
    ::alarm(longest_run_ms / 1000 + 10); // ends the process when not even the event loop runs
}

void guide::step(const QString& name, const QString& expected, const QStringList& seen) {
    for (const QString& text : seen) {
        if (text != expected) {
            fail(u"%1: expected \"%2\", seen \"%3\""_s.arg(name, expected, seen.join(u"\", \""_s)));
        }
    }
    QGuiApplication::sync(); // a window that was closed is gone
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && QTest::qWaitForWindowExposed(window)) {
            window->repaint();
            listen_to(*QAccessible::queryAccessibleInterface(window));
        }
    }
    if (!take_picture(name)) {
        fail(u"cannot save the picture in "_s + folder.path());
    }
    const char* where = seen.size() > 1 ? "in window and database" : "seen";
    std::printf("ok %02d %s: %s \"%s\"\n", number, qPrintable(name), where, qPrintable(expected));
    std::fflush(stdout);
    ++number;
}

void guide::wait_for(const QString& what, const std::function<bool()>& condition) {
    if (!QTest::qWaitFor(condition, longest_wait_ms)) {
        fail(u"expected %1, not seen within %2 ms"_s.arg(what).arg(longest_wait_ms));
    }
}

void guide::activate(QWidget& window) {
    window.activateWindow(); // there may be no window manager to do it
    wait_for(u"the keyboard in "_s + window.windowTitle(),
             [&window] { return window.isActiveWindow(); });
}

void guide::look_at(QWidget& dialog) {
    activate(dialog);
    const QWidget* owner = dialog.parentWidget() ? dialog.parentWidget()->window() : &dialog;
    const QPoint off = dialog.geometry().center() - owner->geometry().center();
    const int title_bar = 60; // at most; the toolkit leaves room for one
    if (QApplication::focusWidget() == nullptr || off.manhattanLength() > title_bar) {
        fail(u"expected in the middle, with the keyboard: "_s + dialog.windowTitle());
    }
}

void guide::check_secret(const QString& data_folder) {
    QDirIterator files(data_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!files.fileName().startsWith(u"sms.old.mdb") && file.open(QIODevice::ReadOnly)) {
            told += QString::fromUtf8(file.readAll());
        }
    }
    for (const auto& sign : {u"MainLeft"_s, u"valdrine"_s, u"用户口令输入错误"_s}) {
        if (!told.contains(sign)) {
            fail(u"expected to be told somewhere: "_s + sign); // so it was really looked there
        }
    }
    if (told.contains(secret)) {
        fail(u"expected no password, seen "_s + told.sliced(told.indexOf(secret), 20));
    }
}

void guide::fail(const QString& reason) {
    std::fprintf(stderr, "not ok %02d %s\n", number, qPrintable(reason));
    take_picture(u"failed"_s);
    std::_Exit(EXIT_FAILURE); // called from within the program's own handlers
}
