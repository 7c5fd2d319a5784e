// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/tour/visitor.h"

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/test_database.h"
#include "tests/tour/guide.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

QString visitor::stored(const QString& statement) {
    return test_database::rows(statement).join(u" / "_s);
}

void visitor::choose(frmMain& window, const QString& menu, const QString& item,
                     const QString& step) {
    guide::activate(window);
    auto& popup = person::find<QMenu>(window, menu);
    const QRect title = window.menuBar()->actionGeometry(popup.menuAction());
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, {}, title.center());
    guide::wait_for(u"the menu "_s + menu, [&popup] { return popup.isVisible(); });
    if (!step.isEmpty()) {
        guide::step(step, u"日常工作(&C)"_s, {popup.title()});
    }
    const QRect line = popup.actionGeometry(&person::find<QAction>(popup, item));
    QTest::mouseClick(&popup, Qt::LeftButton, {}, line.center());
}

frmdatagrid& visitor::front_list(const frmMain& window) {
    const QMdiSubWindow* front = window.findChild<QMdiArea*>()->currentSubWindow();
    if (front == nullptr) {
        guide::fail(u"expected a list, seen none"_s);
    }
    return *qobject_cast<frmdatagrid*>(front->widget());
}

data_grid& visitor::front_grid(const frmMain& window) {
    return person::find<data_grid>(front_list(window), u"DataGrid1"_s);
}

void visitor::press(frmMain& window, const QString& tool) {
    guide::activate(window);
    person::click(front_list(window), tool);
}

QString visitor::rows_of(const data_grid& grid, int first, int last, int row) {
    QStringList rows;
    for (; row < grid.model()->rowCount(); ++row) {
        QStringList texts;
        for (int column = first; column <= last; ++column) {
            texts.append(grid.model()->index(row, column).data().toString());
        }
        rows.append(texts.join(u'|'));
    }
    return rows.join(u" / "_s);
}

QString visitor::shown(const frmMain& window, int last, int row) {
    return rows_of(front_grid(window), 1, last, row);
}

QString visitor::layout_of(const frmMain& window) {
    const data_grid& grid = front_grid(window);
    QStringList headings;
    for (int column = 0; column < grid.model()->columnCount(); ++column) {
        if (!grid.isColumnHidden(column)) {
            headings.append(grid.model()->headerData(column, Qt::Horizontal).toString());
        }
    }
    return headings.join(u'|');
}

void visitor::expect_box(const QString& step, const QString& text,
                         QMessageBox::StandardButton answer) {
    person::during_modal<QMessageBox>([=](QMessageBox& box) {
        guide::step(step, text, {box.windowTitle() + u'|' + box.text()});
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
    });
}

void visitor::expect_dialog(const char* dialog_class, const QString& step, const QString& caption,
                            const person::boxes& texts) {
    person::expect_modal(dialog_class, [=](QWidget& dialog) {
        person::type(dialog, texts);
        guide::step(step, caption, {dialog.windowTitle()});
        person::press_key(dialog, Qt::Key_Return,
                          dialog.inherits("edit_dialog") ? Qt::ControlModifier : Qt::NoModifier);
    });
}

void visitor::expect_saving(const char* dialog_class, const QString& step, const QString& caption,
                            const person::boxes& texts, const QString& saved,
                            QMessageBox::StandardButton answer) {
    expect_dialog(dialog_class, step, caption, texts);
    expect_box(step + u"-saved"_s, saved, answer);
}

void visitor::expect_filled(const char* dialog_class, const QString& step,
                            const person::answer& fill, const QStringList& boxes,
                            const QString& filled, const QString& saved,
                            const std::function<void()>& next) {
    person::expect_modal(dialog_class, [=](QWidget& dialog) {
        fill(dialog);
        QStringList seen;
        for (const QString& box : boxes) {
            seen.append(person::text_of(dialog, box));
        }
        guide::step(step, filled, {seen.join(u'|')});
        expect_box(step + u"-saved"_s, u"保存成功|"_s + saved,
                   next ? QMessageBox::Yes : QMessageBox::No);
        if (next) {
            next();
        }
        person::click(dialog, u"cmdok"_s);
    });
}

void visitor::pick(const QWidget& dialog, const QString& button, const QString& step,
                   const QString& caption, const QString& text) {
    person::expect_modal("frmref", [=](QWidget& picker) {
        person::type(picker, u"txtFind"_s, text);
        guide::step(step, caption, {picker.windowTitle()});
        person::press_key(picker, Qt::Key_Return);
    });
    person::click(dialog, button);
}

void visitor::expect_login(const QString& step, const QString& password, const QString& name) {
    expect_dialog("frmLogin", step, u"系统登录"_s,
                  {{u"txtUserName"_s, name}, {u"txtPassword"_s, password}});
}

void visitor::see_rows(const QString& step, const QString& expected, const frmMain& window,
                       int last, const QString& statement, int row) {
    guide::step(step, expected, {shown(window, last, row), stored(statement)});
}

QString visitor::describe(const frmMain& window) {
    const QString place =
        QString::asprintf("%d,%d %dx%d ", window.x(), window.y(), window.width(), window.height());
    return place + person::find<QLabel>(window, u"Panel2"_s).text() + u'|' +
           person::find<QAction>(window, u"logout"_s).text();
}
