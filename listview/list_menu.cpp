// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/list_menu.h"

#include "listview/row_export.h"
#include "platform/guarded.h"
#include "platform/widgets/data_grid.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QToolBar>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The items in their order, by the names of the tools or of our own; an empty one parts them.
constexpr auto order = std::to_array<QStringView>({u"Add",
                                                   u"Edit",
                                                   u"Delete",
                                                   u"show_row",
                                                   {},
                                                   u"copy",
                                                   u"export",
                                                   {},
                                                   u"find",
                                                   u"find_again",
                                                   u"find_back",
                                                   {},
                                                   u"sort",
                                                   u"setfield",
                                                   u"lines",
                                                   u"refresh",
                                                   u"Save"});

QAction* make_separator(data_grid& grid) {
    auto* separator = new QAction(&grid);
    separator->setSeparator(true);
    return separator;
}

QAction* make_item(data_grid& grid, const QString& name, const QString& caption,
                   const QKeySequence& keys, const std::function<void()>& run) {
    auto* item = new QAction(caption, &grid);
    item->setObjectName(name);
    item->setShortcut(keys);
    item->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(item, &QAction::triggered, &grid, guarded([run] { run(); }));
    return item;
}

QAction* make_heights(data_grid& grid) {
    auto* menu = new QMenu(u"行高"_s, &grid);
    menu->menuAction()->setObjectName(u"lines"_s);
    auto* heights = new QActionGroup(menu);
    for (const auto& [caption, lines] :
         {std::pair(u"一行"_s, 1), std::pair(u"三行"_s, 3), std::pair(u"六行"_s, 6)}) {
        QAction* height = heights->addAction(menu->addAction(caption));
        height->setObjectName(u"lines%1"_s.arg(lines));
        height->setCheckable(true);
        height->setChecked(lines == 1);
        QObject::connect(height, &QAction::triggered, &grid,
                         [&grid, lines = lines] { grid.set_lines(lines); });
    }
    return menu->menuAction();
}

void copy_marked_row(const data_grid& grid) {
    if (grid.row() >= 0) {
        QGuiApplication::clipboard()->setText(marked_row_as_line(grid));
    }
}

} // namespace

void add_list_menu(data_grid& grid, const QToolBar& tools, const list_menu_commands& commands) {
    QList<QAction*> items = tools.actions();
    items << make_item(grid, u"show_row"_s, u"看全文"_s, {}, commands.show_row)
          << make_item(grid, u"copy"_s, u"复制"_s, QKeySequence::Copy,
                       [&grid] { copy_marked_row(grid); })
          << make_item(grid, u"export"_s, u"导出…"_s, {}, commands.export_rows)
          << make_item(grid, u"find_again"_s, u"再找一次"_s, Qt::Key_F3, commands.find_again)
          << make_item(grid, u"find_back"_s, u"往回再找"_s, Qt::SHIFT | Qt::Key_F3,
                       commands.find_back)
          << make_heights(grid);
    for (const QStringView name : order) {
        const auto item = std::find_if(items.begin(), items.end(), [name](const QAction* one) {
            return one->objectName() == name;
        });
        if (name.isEmpty()) {
            grid.addAction(make_separator(grid));
        } else if (item != items.end() && (*item)->isEnabled()) {
            grid.addAction(*item);
        }
    }
    grid.setContextMenuPolicy(Qt::ActionsContextMenu);
}
