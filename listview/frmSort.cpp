// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmSort.h"

using namespace Qt::StringLiterals;

frmSort::frmSort(const spListHeaders& headers, QWidget* parent)
    : column_chooser(headers, u"排序"_s, u"顺序"_s, u"降序"_s, u"升序"_s, parent) {
    choose_option(1);
}

QString frmSort::make_result(const QString& key) const {
    return key + (is_first_option() ? u" DESC"_s : u" ASC "_s);
}
