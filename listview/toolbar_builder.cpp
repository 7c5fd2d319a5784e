// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/toolbar_builder.h"

#include <QAction>
#include <QKeySequence>
#include <QStringView>
#include <QToolBar>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct bitmap {
    QStringView key;
    int resource = 0;
};

constexpr auto bitmaps = std::to_array<bitmap>({
    {u"print", 314},
    {u"preview", 312},
    {u"output", 308},
    {u"Add", 323},
    {u"Edit", 324},
    {u"Delete", 326},
    {u"Save", 1145},
    {u"filter", 1120},
    {u"find", 309},
    {u"setfield", 8},
    {u"sort", 1148},
    {u"refresh", 154},
    {u"Help", 396},
    {u"Exit", 1118},
});

enum class present { in_all, in_all_and_modify, with_filter, always };

struct button {
    QStringView key; ///< empty for a separator
    QStringView caption;
    present where = present::always;
    QStringView shortcut = {};
};

constexpr auto buttons = std::to_array<button>({
    {u"Add", u"增加", present::in_all, u"Ctrl+N"},
    {u"Edit", u"修改", present::in_all_and_modify, u"F2"},
    {u"Delete", u"删除", present::in_all},
    {{}, {}, present::in_all_and_modify},
    {u"filter", u"过滤", present::with_filter},
    {u"find", u"查找", present::always, u"Ctrl+F"},
    {u"sort", u"排序"},
    {u"setfield", u"设置"},
    {u"refresh", u"刷新", present::always, u"F5"},
    {u"Save", u"保存", present::always, u"Ctrl+S"},
    {{}, {}},
    {u"Help", u"帮助"},
    {u"Exit", u"退出"},
});

bool is_present(present where, const QString& mode, bool with_filter) {
    switch (where) {
    case present::in_all:
        return mode == u"all";
    case present::in_all_and_modify:
        return mode == u"all" || mode == u"modify";
    case present::with_filter:
        return with_filter;
    case present::always:
        break;
    }
    return true;
}

void add_button(QToolBar& toolbar, const button& shown, const QIcon& icon) {
    const QString caption = shown.caption.toString();
    QAction* action = toolbar.addAction(icon, caption);
    action->setObjectName(shown.key);
    toolbar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // not all have a shortcut
    if (!shown.shortcut.isEmpty()) {
        action->setShortcut(QKeySequence(shown.shortcut.toString()));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        toolbar.parentWidget()->addAction(action);
        action->setToolTip(u"%1 (%2)"_s.arg(caption, shown.shortcut));
    }
}

} // namespace

void build_toolbar(image_list& images, QToolBar& toolbar, bool /*read_only*/, const QString& mode,
                   bool with_filter) {
    images.clear();
    for (const bitmap& picture : bitmaps) {
        images.insert(picture.key.toString(), QIcon(u":/bitmaps/%1.svg"_s.arg(picture.resource)));
    }
    qDeleteAll(toolbar.actions());
    for (const button& shown : buttons) {
        if (!is_present(shown.where, mode, with_filter)) {
            continue;
        }
        if (shown.key.isEmpty()) {
            toolbar.addSeparator();
        } else {
            add_button(toolbar, shown, images.value(shown.key.toString()));
        }
    }
}
