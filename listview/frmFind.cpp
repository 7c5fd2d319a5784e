// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmFind.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

QString search_request::criterion() const {
    return key + u"='"_s + value + u'\'';
}

frmFind::frmFind(const spListHeaders& headers, const search_request& last, QWidget* parent)
    : column_chooser(headers, u"条件"_s, u"方向："_s, u"向前"_s, u"向后"_s, parent),
      txtV(new QLineEdit(last.value, this)) {
    txtV->setObjectName(u"txtV"_s);
    add_row(u"查值："_s, txtV);
    choose_column(last.key);
    choose_option(last.forward ? 0 : 1);
    if (!last.key.isEmpty()) { // the next search is most often for another value
        txtV->setFocus();
        txtV->selectAll();
    }
    connect(this, &QDialog::accepted, this, [this] { forward = is_first_option(); });
}

QString frmFind::make_result(const QString& key) const {
    return search_request{.key = key, .value = txtV->text()}.criterion();
}

search_request frmFind::request() const {
    return {.key = chosen_key(), .value = txtV->text(), .forward = forward};
}
