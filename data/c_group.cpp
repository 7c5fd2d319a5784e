// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_group.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_group read(const Recordset& rs) {
    return {.gid = to_int16(rs.Fields(u"gid"_s)),
            .cid = to_int16(rs.Fields(u"cid"_s)),
            .ccid = to_int16(rs.Fields(u"ccid"_s)),
            .cname = nvltrim(rs.Fields(u"cname"_s)),
            .cusname = nvltrim(rs.Fields(u"cusname"_s)),
            .mobile = nvltrim(rs.Fields(u"mobile"_s))};
}

} // namespace

c_group::c_group()
    : table_access({.all = u"SELECT * From vwgroup order by ccid",
                    .one = u"SELECT * From vwgroup where gid=%1",
                    .removal = u"delete from cgroup where gid=%1",
                    .read = read}) {}

void c_group::searchsms(const QString& /*text*/, Recordset& rs) const {
    rs.Open(u"SELECT * From vwgroup"_s);
}

bool c_group::addrec(qint16 cid, qint16 ccid) const {
    return execute(connection, u"INSERT INTO cgroup (cid, ccid) values (%1,%2)"_s, cid, ccid);
}

bool c_group::updaterec(qint16 gid, qint16 cid, qint16 ccid) const {
    return execute(strconn, u"update cgroup set cid=%2,ccid=%3 where gid=%1"_s, gid, cid, ccid);
}
