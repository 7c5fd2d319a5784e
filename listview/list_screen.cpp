// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/list_screen.h"

#include "listview/frmdatagrid.h"

void list_screen::listall() {
    open_list_window(windows_, *this, described_.view_no.toString());
}

QString list_screen::getidstring() const {
    return described_.id_column.toString();
}

std::optional<spListHeaders> list_screen::Ref() {
    if (described_.picker_columns.empty()) {
        return std::nullopt;
    }
    return pick_reference(*this, make_picker_columns(described_.picker_caption.toString(),
                                                     described_.view_no.toString(),
                                                     described_.picker_columns));
}
