// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_rights.h"

using namespace Qt::StringLiterals;

void c_rights::openrs(Recordset& rs, qint32 userid) {
    rs.Open(u"select * from rights where userid=%1"_s.arg(literal(userid)));
}

void c_rights::open_functions(Recordset& rs) const {
    open_detached(rs, u"Functions"_s);
}

void c_rights::addrec(qint32 userid, qint32 funid) const {
    run(connection, u"insert into rights (userid,funid) values (%1,%2)"_s, userid, funid);
}

void c_rights::deleterec(qint32 userid, qint32 funid) const {
    run(connection, u"delete  from rights where userid=%1 and funid=%2"_s, userid, funid);
}
