// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmconduser.h"

#include "data/fmtdatetime.h"
#include "listview/dialog_buttons.h"
#include "listview/labelled_box.h"
#include "listview/picker_button.h"
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
    auto* cmdref = make_picker_button(u"cmdref"_s, u"选择操作员"_s);
    txtuserid =
        add_labelled_box(*form, u"lblFieldLabel"_s, u"操作员号："_s, u"txtuserid"_s, {}, cmdref);
    txtsdate = add_labelled_box(*form, u"lblFieldLabel"_s, u"开始日期："_s, u"txtsdate"_s);
    txtedate = add_labelled_box(*form, u"lblFieldLabel"_s, u"截止日期："_s, u"txtedate"_s);
    const dialog_buttons buttons = add_buttons(*this, *layout, u"确认"_s, u"取消"_s);
    buttons.ok->setObjectName(u"cmdOK"_s);
    buttons.cancel->setObjectName(u"cmdCancel"_s);

    filltext();
    connect(cmdref, &QPushButton::clicked, this,
            guarded([this, &operators] { pick_operator(operators); }));
    connect(buttons.ok, &QPushButton::clicked, this, guarded([this] {
                fillcond(); // a box that cannot be read keeps the dialog open
                confirmed = true;
                accept();
            }));
    setMinimumWidth(fontMetrics().averageCharWidth() * 55);
}

void frmconduser::pick_operator(vc_in& operators) {
    txtuserid->clear();
    if (const auto picked = operators.Ref()) {
        txtuserid->setText(picked->picked(u"userid"_s));
    }
    txtuserid->setFocus();
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
