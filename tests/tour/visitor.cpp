// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/tour/visitor.h"

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/person.h"
#include "tests/support/test_database.h"
#include "tests/tour/guide.h"

#include <QComboBox>
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

DataGrid& visitor::front_grid(const frmMain& window) {
    return person::find<DataGrid>(front_list(window), u"DataGrid1"_s);
}

void visitor::press(frmMain& window, const QString& tool) {
    guide::activate(window);
    person::click(front_list(window), tool);
}

QString visitor::shown(const frmMain& window, int last, int row) {
    const auto* cells = front_grid(window).model();
    QStringList rows;
    for (; row < cells->rowCount(); ++row) {
        QStringList texts;
        for (int column = 1; column <= last; ++column) {
            texts.append(cells->index(row, column).data().toString());
        }
        rows.append(texts.join(u'|'));
    }
    return rows.join(u" / "_s);
}

QString visitor::layout_of(const frmMain& window) {
    const DataGrid& grid = front_grid(window);
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
                            const typed& texts) {
    person::expect_modal(dialog_class, [=](QWidget& dialog) {
        for (const auto& [name, text] : texts) {
            auto* choices = dialog.findChild<QComboBox*>(name);
            if (choices == nullptr) {
                person::type(dialog, name, text);
            }
            for (int downs = choices ? choices->findText(text) : -1; downs >= 0; --downs) {
                QTest::keyClick(choices, Qt::Key_Down);
            }
        }
        guide::step(step, caption, {dialog.windowTitle()});
        person::press_key(dialog, Qt::Key_Return,
                          dialog.inherits("edit_dialog") ? Qt::ControlModifier : Qt::NoModifier);
    });
}

void visitor::expect_pick(const QString& step, const QString& caption, int downs) {
    person::expect_modal("frmref", [=](QWidget& picker) {
        for (int i = 0; i < downs; ++i) {
            person::press_key(picker, Qt::Key_Down);
        }
        guide::step(step, caption, {picker.windowTitle()});
        person::press_key(picker, Qt::Key_Return);
    });
}

void visitor::expect_login(const QString& step, const QString& password, const QString& name) {
    typed texts{{u"txtPassword"_s, password}};
    if (!name.isEmpty()) {
        texts.prepend({u"txtUserName"_s, name});
    }
    expect_dialog("frmLogin", step, u"系统登录"_s, texts);
}

QString visitor::describe(const frmMain& window) {
    const QString place =
        QString::asprintf("%d,%d %dx%d ", window.x(), window.y(), window.width(), window.height());
    return place + person::find<QLabel>(window, u"Panel2"_s).text() + u'|' +
           person::find<QAction>(window, u"logout"_s).text();
}
