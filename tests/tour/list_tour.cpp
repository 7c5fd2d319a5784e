// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "listview/forms/row_dialog.h"
#include "listview/frmdatagrid.h"
#include "platform/widgets/data_grid.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

void click_heading(const data_grid& grid, int column) {
    const QHeaderView& header = *grid.horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + 20, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

/// The marked row stays: the status bar tells where it has gone.
void sort_by_headings(frmMain& window) {
    const data_grid& grid = front_grid(window);
    click_heading(grid, 1);
    click_heading(grid, 1);
    guide::step(
        u"heading-clicked"_s, u"赵志强|第 2 条，共 8 条"_s,
        {front_list(window).value(u"cname"_s) + u'|' + person::text_of(window, u"Panel1"_s)});
}

void open_the_menu(frmMain& window) {
    data_grid& grid = front_grid(window);
    QTimer::singleShot(0, &grid, [] { // while the menu is open
        QWidget* menu = nullptr;
        guide::wait_for(u"the context menu"_s, [&menu] {
            menu = QApplication::activePopupWidget();
            return menu != nullptr;
        });
        guide::step(u"context-menu"_s, u"修改"_s, {menu->actions().at(1)->text()});
        menu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {80, 80},
                            grid.viewport()->mapToGlobal(QPoint(80, 80)));
    QApplication::sendEvent(grid.viewport(), &asked);
}

void export_the_list(frmMain& window) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"客户.csv"_s);
    person::during_modal<QFileDialog>([&path](QFileDialog& dialog) {
        person::type(dialog, u"fileNameEdit"_s, path);
        guide::step(u"export"_s, u"导出"_s, {dialog.windowTitle()});
        person::press_key(dialog, Qt::Key_Return);
    });
    person::choose(front_list(window), u"export"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        guide::fail(u"expected the file "_s + path);
    }
    guide::step(u"exported"_s, u"9"_s,
                {QString::number(QString::fromUtf8(file.readAll()).count(u"\r\n"_s))});
}

} // namespace

void tour::work_in_a_list(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    person::press_key(window, Qt::Key_Down);
    person::press_key(window, Qt::Key_Down);
    person::press_key(window, Qt::Key_Down);
    sort_by_headings(window);
    open_the_menu(window);
    export_the_list(window);
    press(window, u"Exit"_s);
}

void tour::read_a_message(frmMain& window, const QString& expected) {
    person::during_modal<row_dialog>([&expected](row_dialog& dialog) {
        guide::step(u"whole-message"_s, expected, {person::text_of(dialog, u"txtFull"_s)});
        person::press_key(dialog, Qt::Key_Escape);
    });
    person::press_key(front_list(window), Qt::Key_Return);
}
