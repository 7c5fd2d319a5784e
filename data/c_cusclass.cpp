// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_cusclass.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_cusclass read(const Recordset& rs) {
    return {.cname = nvltrim(rs.Fields(u"cname"_s)), .ccid = to_int16(rs.Fields(u"ccid"_s))};
}

} // namespace

c_cusclass::c_cusclass()
    : table_access({.all = u"SELECT ccid, cname From cusclass",
                    .one = u"SELECT ccid, cname From cusclass where ccid=%1",
                    .removal = u"delete from cusclass where ccid=%1",
                    .read = read}) {}

void c_cusclass::searchsms(const QString& /*text*/, Recordset& rs) const {
    rs.Open(u"SELECT ccid, cname From cusclass\""_s);
}

bool c_cusclass::addrec(const QString& cname) const {
    return execute(connection, u"INSERT INTO cusclass (cname) values (%1)"_s, cname);
}

bool c_cusclass::updaterec(const QString& cname, qint16 ccid) const {
    return execute(strconn, u"update cusclass set cname=%1 where ccid=%2"_s, cname, ccid);
}
