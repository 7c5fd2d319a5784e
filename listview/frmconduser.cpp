// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmconduser.h"

#include "data/fmtdatetime.h"
#include "listview/forms/dialog_buttons.h"
#include "listview/forms/form_row.h"
#include "listview/forms/picker_button.h"
#include "listview/vc_in.h"
#include "platform/conversion.h"
#include "platform/guarded.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmconduser::frmconduser(operation_condition shown, vc_in& operators, QWidget* parent)
    : QDialog(parent), condition(std::move(shown)) {
    setWindowTitle(u"筛选条件"_s);
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addLayout(form);
    const QString name = u"lblFieldLabel"_s;
    const auto of_user = add_line_row(*form, name, u"操作员号："_s, u"txtuserid"_s);
    txtuserid = of_user.box;
    txtsdate = add_line_row(*form, name, u"开始日期："_s, u"txtsdate"_s).box;
    txtedate = add_line_row(*form, name, u"截止日期："_s, u"txtedate"_s).box;
    add_picker_button(
        of_user, u"cmdref"_s, u"选择操作员"_s,
        [this, &operators] {
            txtuserid->clear();
            return operators.Ref();
        },
        {{txtuserid, u"userid"_s}}, given_up::empties_them);
    const QPushButton* ok = add_buttons(*this, *layout, button_set::confirm);

    filltext();
    connect(ok, &QPushButton::clicked, this, guarded([this] {
                fillcond(); // a box that cannot be read keeps the dialog open
                confirmed = true;
                accept();
            }));
    setMinimumWidth(fontMetrics().averageCharWidth() * 55);
}

void frmconduser::filltext() {
    txtsdate->setText(show_datetime(condition.start));
    txtedate->setText(show_datetime(condition.end));
}

void frmconduser::fillcond() {
    condition.start = typed_datetime(txtsdate->text());
    condition.end = typed_datetime(txtedate->text());
    if (txtuserid->text().isEmpty()) {
        condition.userid = 0;
    } else {
        static_cast<void>(to_int16(txtuserid->text()));
        condition.userid = txtuserid->text();
    }
}
