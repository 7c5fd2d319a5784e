// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_smsm.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_smsmodel read(const Recordset& rs) {
    return {.text = nvltrim(rs.Fields(u"text"_s)), .mid = to_int16(rs.Fields(u"mid"_s))};
}

} // namespace

c_smsm::c_smsm()
    : table_access({.all = u"SELECT mid, text From smsmodels",
                    .one = u"SELECT mid, text From smsmodels where mid=%1",
                    .removal = u"delete from smsmodels where mid=%1",
                    .read = read}) {}

void c_smsm::searchsms(const QString& text, Recordset& rs) const {
    rs.Open(u"SELECT mid, text From m_smsmodels where text like %1"_s.arg(literal(text)));
}

bool c_smsm::addrec(const QString& text) const {
    return execute(connection, u"INSERT INTO smsmodels (text) values (%1)"_s, text);
}

bool c_smsm::updaterec(const QString& text, qint16 mid) const {
    return execute(strconn, u"update smsmodels set text=%1 where mid=%2"_s, text, mid);
}
