// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class data_grid;
class QToolBar;

/// What the context menu of a list offers beside the tools.
struct list_menu_commands {
    std::function<void()> show_row;
    std::function<void()> find_again;
    std::function<void()> find_back;
    std::function<void()> export_rows;
};

/// Gives the grid its context menu: the tools that work, then these commands, "复制" and the height
/// of the rows; and the keys of all of them.
void add_list_menu(data_grid& grid, const QToolBar& tools, const list_menu_commands& commands);
