// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmserver.h"

#include "app/application_title.h"
#include "listview/forms/dialog_buttons.h"
#include "listview/forms/form_row.h"
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
    Text1 =
        add_line_row(*form, u"Label1"_s, u"SQLSERVER名称："_s, u"Text1"_s,
                     settings_store::get(application_title(), settings_section(), u"connection"_s))
            .box;
    const QPushButton* ok = add_buttons(*this, *layout, button_set::confirm);
    connect(ok, &QPushButton::clicked, this, &frmserver::cmdOK_Click);
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
