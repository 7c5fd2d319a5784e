// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmLogin.h"

#include "app/error_report.h"
#include "data/c_users.h"
#include "listview/forms/dialog_buttons.h"
#include "listview/forms/form_row.h"
#include "operators/rsclsuser.h"
#include "platform/conversion.h"
#include "platform/widgets/msgbox.h"

#include <QDate>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmLogin::frmLogin(QWidget* parent) : QDialog(parent) {
    setWindowTitle(u"系统登录"_s);
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addLayout(form);
    txtUserName =
        add_line_row(*form, u"lblLabels"_s, u"用户名称："_s, u"txtUserName"_s, u"valdrine"_s).box;
    txtPassword = add_line_row(*form, u"lblLabels"_s, u"口令："_s, u"txtPassword"_s).box;
    txtPassword->setEchoMode(QLineEdit::Password);
    add_line_row(*form, u"lbldate"_s, u"业务日期："_s, u"txtDate"_s,
                 QDate::currentDate().toString(u"yyyy-MM-dd"_s));

    const QPushButton* ok = add_buttons(*this, *layout, button_set::confirm);
    connect(ok, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    txtPassword->setFocus();
    setMinimumWidth(fontMetrics().averageCharWidth() * 45);
}

void frmLogin::cmdOK_Click() {
    try {
        log_in();
    } catch (const std::exception& error) {
        show_last_error(error);
        failed = true;
        reject();
    }
}

void frmLogin::log_in() {
    Recordset rs;
    c_users().open_login(rs, txtUserName->text(), txtPassword->text());
    if (rs.Bof() && rs.Eof()) {
        msgbox::plain(u"用户名称或者口令输入错误，请重新输入！"_s, u"登录错误"_s);
        txtPassword->setFocus();
        txtPassword->selectAll();
        return;
    }
    curuser->set_userid(to_int16(rs.Fields(u"userid"_s)));
    curuser->set_username(to_text(rs.Fields(u"username"_s)));
    curuser->set_password(to_text(rs.Fields(u"password"_s)));
    loginok = true;
    accept();
}
