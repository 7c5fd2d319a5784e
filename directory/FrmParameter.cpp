// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "directory/FrmParameter.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

FrmParameter::FrmParameter(QWidget* parent) : edit_dialog(u"参数设置"_s, parent) {
    const auto ip = add_line(u"txtip"_s, u"短信服务器的IP地址："_s, record.ip);
    add_number(u"txtport"_s, u"短信服务器的端口："_s, record.port);
    add_note(u"lblRestart"_s, u"修改以后，请退出程序再进来，新的参数才起作用。"_s);
    finish(*ip.box);
}

QString FrmParameter::conversion_refusal() const {
    return u"输入的参数错误，请检查！  "_s;
}
