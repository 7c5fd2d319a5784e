// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmFind.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmFind::frmFind(const spListHeaders& headers, QWidget* parent)
    : column_chooser(headers, u"条件"_s, u"方向："_s, u"向前"_s, u"向后"_s, parent),
      txtV(new QLineEdit(this)) {
    txtV->setObjectName(u"txtV"_s);
    add_row(u"查值："_s, txtV);
    connect(this, &QDialog::accepted, this, [this] { forward = is_first_option(); });
}

QString frmFind::make_result(const QString& key) const {
    return key + u"='"_s + txtV->text() + u'\'';
}
