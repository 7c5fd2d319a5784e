// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_cusclass.h"

#include "data/nvltrim.h"
#include "data/strconn.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

void c_cusclass::openrs(Recordset& rs) const {
    open_detached(rs, u"SELECT ccid, cname From cusclass"_s);
}

void c_cusclass::searchsms(const QString& /*text*/, Recordset& rs) const {
    rs.Open(u"SELECT ccid, cname From cusclass\""_s);
}

std::optional<m_cusclass> c_cusclass::getrec(qint16 ccid) const {
    return read_one(u"SELECT ccid, cname From cusclass where ccid=%1"_s.arg(literal(ccid)),
                    [](const Recordset& rs) {
                        return m_cusclass{.cname = nvltrim(rs.Fields(u"cname"_s)),
                                          .ccid = to_int16(rs.Fields(u"ccid"_s))};
                    });
}

bool c_cusclass::addrec(const QString& cname) const {
    return execute(connection, u"INSERT INTO cusclass (cname) values (%1)"_s, cname);
}

bool c_cusclass::updaterec(const QString& cname, qint16 ccid) const {
    return execute(strconn, u"update cusclass set cname=%1 where ccid=%2"_s, cname, ccid);
}

bool c_cusclass::deleterec(qint16 ccid) const {
    return execute(strconn, u"delete from cusclass where ccid=%1"_s, ccid);
}
