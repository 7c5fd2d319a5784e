// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/support/person.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include <deque>

namespace {

constexpr int poll_ms = 5;
constexpr int watchdog_polls = 4000; // against a hang, not a measure of speed

struct expectation {
    QByteArray class_name;
    person::answer act;
};

std::deque<expectation> expected;
std::function<void(QWidget&)> observer;
int polls_left = 0;
bool polling = false;

void poll();

void poll_later() {
    if (!polling) {
        polling = true;
        QTimer::singleShot(poll_ms, qApp, poll);
    }
}

void give_up(const QString& reason) {
    if (QTest::currentTestFunction() == nullptr) { // no test that could fail: a program of its own
        qFatal("%s", qPrintable(reason));
    }
    expected.clear();
    QTest::qFail(qPrintable(reason), __FILE__, __LINE__);
    for (int i = 0; i < 20 && QApplication::activeModalWidget() != nullptr; ++i) {
        QApplication::activeModalWidget()->close();
    }
    polls_left = 0; // whatever comes up after these is closed at once
    poll_later();
}

QString describe(const QWidget& dialog) {
    const auto* box = qobject_cast<const QMessageBox*>(&dialog);
    return QStringLiteral("%1 \"%2\" %3")
        .arg(QString::fromLatin1(dialog.metaObject()->className()), dialog.windowTitle(),
             box == nullptr ? QString() : box->text());
}

/// A dialog that stays with nobody to answer it would hang the test.
void watch_unexpected(const QWidget* modal) {
    if (modal == nullptr || QTest::currentTestFunction() == nullptr) {
        return;
    }
    if (--polls_left <= 0) {
        give_up(QStringLiteral("nobody answers ") + describe(*modal));
    }
    poll_later();
}

/// About to do what may open a dialog.
void watch() {
    polls_left = watchdog_polls;
    poll_later();
}

/// Looks for the dialog that is expected next; a timer of its own a step, because answering one
/// dialog may open the next inside it.
void poll() {
    polling = false;
    static QPointer<QWidget> last;
    QWidget* modal = QApplication::activeModalWidget();
    if (expected.empty()) {
        watch_unexpected(modal);
        return;
    }
    if (modal == nullptr) {
        last = nullptr;
    } else if (modal->inherits(expected.front().class_name.constData())) {
        const expectation current = std::move(expected.front());
        expected.pop_front();
        polls_left = watchdog_polls;
        last = modal;
        if (observer) {
            observer(*modal);
        }
        poll_later();
        current.act(*modal);
        return;
    } else if (modal != last) {
        give_up(QStringLiteral("unexpected: ") + describe(*modal));
        return;
    }
    if (--polls_left <= 0) {
        give_up(QStringLiteral("no ") + QString::fromLatin1(expected.front().class_name));
        return;
    }
    poll_later();
}

} // namespace

void person::expect_modal(const char* class_name, answer act) {
    expected.push_back({class_name, std::move(act)});
    watch();
}

void person::expect_box(const QString& title, const QString& text,
                        QMessageBox::StandardButton answer, QMessageBox::Icon icon) {
    during_modal<QMessageBox>([=](QMessageBox& box) {
        const QString shown = box.windowTitle() + u'|' + box.text();
        // A title bar without a text would show the name of the program's file.
        const bool matches = shown == title + u'|' + text && box.icon() == icon &&
                             !box.windowHandle()->title().isEmpty();
        QAbstractButton* button = box.button(answer);
        if (!matches || button == nullptr) {
            give_up(QStringLiteral("box \"%1\" with symbol %2 instead of \"%3|%4\"")
                        .arg(shown, QString::number(box.icon()), title, text));
            return;
        }
        QTest::mouseClick(button, Qt::LeftButton);
    });
}

bool person::all_answered() {
    const bool all = expected.empty();
    expected.clear();
    return all;
}

void person::set_observer(std::function<void(QWidget&)> watches) {
    observer = std::move(watches);
}

void person::type(const QWidget& window, const QString& name, const QString& text) {
    auto& box = find<QWidget>(window, name);
    box.setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(&box)) {
        line->selectAll();
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&box)) {
        lines->selectAll();
    }
    QTest::keyClick(&box, Qt::Key_Delete);
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QApplication::sendEvent(&box, &typed);
}

QString person::text_of(const QWidget& window, const QString& name) {
    const auto& box = find<QWidget>(window, name);
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&box)) {
        return lines->toPlainText();
    }
    return box.property("text").toString();
}

void person::click(const QWidget& window, const QString& name) {
    watch();
    if (auto* button = window.findChild<QAbstractButton*>(name)) {
        // Near the left, where a check box has its mark.
        const int middle = button->height() / 2;
        QTest::mouseClick(button, Qt::LeftButton, {}, {middle, middle});
        return;
    }
    auto& toolbar = find<QToolBar>(window, QStringLiteral("Toolbar1"));
    QWidget* button = toolbar.widgetForAction(&find<QAction>(toolbar, name));
    QTest::mouseClick(button, Qt::LeftButton);
}

void person::press_key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    watch();
    QWidget* focus = window.focusWidget();
    QTest::keyClick(focus == nullptr ? &window : focus, key, modifiers);
}

void person::choose(const QWidget& window, const QString& name) {
    auto& item = find<QAction>(window, name);
    if (!item.isEnabled()) {
        qFatal("the menu item %s is greyed", qPrintable(name));
    }
    watch();
    item.trigger();
}
