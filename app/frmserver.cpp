// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmserver.h"

#include "app/application_title.h"
#include "listview/dialog_buttons.h"
#include "listview/labelled_box.h"
#include "platform/database/connection_string.h"
#include "platform/server_probe.h"
#include "platform/settings_store.h"
#include "platform/widgets/msgbox.h"
#include "platform/widgets/wait_cursor.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmserver::frmserver(QWidget* parent) : QDialog(parent) {
    setWindowTitle(application_title());
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addLayout(form);
    Text1 = add_labelled_box(
        *form, u"Label1"_s, u"SQLSERVER名称："_s, u"Text1"_s,
        settings_store::get(application_title(), settings_section(), u"connection"_s));
    const dialog_buttons buttons = add_buttons(*this, *layout, u"确认"_s, u"取消"_s);
    buttons.ok->setObjectName(u"cmdOK"_s);
    buttons.cancel->setObjectName(u"cmdCancel"_s);
    connect(buttons.ok, &QPushButton::clicked, this, &frmserver::cmdOK_Click);
    setMinimumWidth(fontMetrics().averageCharWidth() * 55);
}

void frmserver::cmdOK_Click() {
    const QString serverconn =
        u"Provider=SQLOLEDB.1;Persist Security Info=False;User ID=sa;Initial Catalog=led;Data Source="_s +
        Text1->text();
    try {
        const wait_cursor waiting;
        probe_server(data_source(serverconn));
    } catch (const std::exception&) {
        msgbox::information(u"服务器连接不成功，请查看服务器名是否输入错误！"_s, u"系统提示"_s);
        return;
    }
    settings_store::save(application_title(), settings_section(), u"connection"_s, Text1->text());
    serverok = true;
    accept();
}
