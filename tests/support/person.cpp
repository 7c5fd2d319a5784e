// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/support/person.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include <deque>

using namespace Qt::StringLiterals;

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
    return u"%1 \"%2\" %3"_s.arg(QString::fromLatin1(dialog.metaObject()->className()),
                                 dialog.windowTitle(), box == nullptr ? QString() : box->text());
}

/// About to do what may open a dialog.
void watch() {
    polls_left = watchdog_polls;
    poll_later();
}

/// Looks for the dialog that is expected next; a timer of its own a step, because answering one
/// dialog may open the next inside it. One that nobody expects would stay, and hang the test.
void poll() {
    polling = false;
    static QPointer<QWidget> last; // was answered, and may take a while to go
    QWidget* modal = QApplication::activeModalWidget();
    if (expected.empty() && (modal == nullptr || QTest::currentTestFunction() == nullptr)) {
        return;
    }
    if (!expected.empty() && modal != nullptr &&
        modal->inherits(expected.front().class_name.constData())) {
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
    }
    if (modal == nullptr) {
        last = nullptr;
    }
    const bool is_another = !expected.empty() && modal != last;
    if (is_another || --polls_left <= 0) {
        give_up(modal == nullptr ? u"no "_s + QString::fromLatin1(expected.front().class_name)
                                 : u"unexpected: "_s + describe(*modal));
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
            give_up(u"box \"%1\" with symbol %2 instead of \"%3|%4\""_s.arg(
                shown, QString::number(box.icon()), title, text));
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
    if (const auto* choices = qobject_cast<QComboBox*>(&box)) {
        for (int downs = choices->findText(text) - choices->currentIndex(); downs > 0; --downs) {
            QTest::keyClick(&box, Qt::Key_Down);
        }
        return;
    }
    QTest::keySequence(&box, QKeySequence::SelectAll);
    QTest::keyClick(&box, Qt::Key_Delete);
    if (!box.property("readOnly").toBool()) { // else the system lets no input method in
        QInputMethodEvent typed;
        typed.setCommitString(text);
        QApplication::sendEvent(&box, &typed);
    }
}

void person::type(const QWidget& window, const boxes& texts) {
    for (const auto& [name, text] : texts) {
        type(window, name, text);
    }
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
    auto& toolbar = find<QToolBar>(window, u"Toolbar1"_s);
    QWidget* button = toolbar.widgetForAction(&find<QAction>(toolbar, name));
    QTest::mouseClick(button, Qt::LeftButton);
}

void person::double_click(const QTableView& grid, int row) {
    watch();
    const QPoint place = grid.visualRect(grid.model()->index(row, 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place);
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
