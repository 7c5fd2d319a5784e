// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_parameter.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

std::optional<m_parameter> c_parameter::getrec() const {
    return read_one(u"SELECT ip, port FROM [parameters]"_s, [](const Recordset& rs) {
        return m_parameter{.ip = nvltrim(rs.Fields(u"ip"_s)),
                           .port = to_int16(rs.Fields(u"port"_s))};
    });
}

bool c_parameter::addrec(const QString& text) const {
    return execute(connection, u"INSERT INTO smsmodels (text) values (%1)"_s, text);
}

bool c_parameter::updaterec(const QString& ip, qint16 port) const {
    return execute(strconn, u"update [Parameters] set ip=%1, port =%2"_s, ip, port);
}
