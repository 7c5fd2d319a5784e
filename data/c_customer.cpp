// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_customer.h"

#include "data/nvltrim.h"
#include "data/strconn.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

void c_customer::openrs(Recordset& rs) const {
    open_detached(rs, u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer"_s);
}

void c_customer::searchsms(const QString& /*text*/, Recordset& rs) const {
    rs.Open(u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer"_s);
}

std::optional<m_customer> c_customer::getrec(qint16 cid) const {
    return read_one(
        u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer where cid=%1"_s.arg(
            literal(cid)),
        [](const Recordset& rs) {
            return m_customer{.cid = to_int16(rs.Fields(u"cid"_s)),
                              .birth = nvltrim(rs.Fields(u"birth"_s)),
                              .cname = nvltrim(rs.Fields(u"cname"_s)),
                              .sex = nvltrim(rs.Fields(u"sex"_s)),
                              .mobile = nvltrim(rs.Fields(u"mobile"_s)),
                              .phone = nvltrim(rs.Fields(u"phone"_s)),
                              .memo = nvltrim(rs.Fields(u"memo"_s))};
        });
}

bool c_customer::addrec(const QString& birth, const QString& cname, const QString& sex,
                        const QString& mobile, const QString& phone, const QString& memo) const {
    return execute(
        connection,
        u"INSERT INTO customer (birth, cname, sex, mobile, phone, memo) values (%1,%2,%3,%4,%5,%6)"_s,
        birth, cname, sex, mobile, phone, memo);
}

bool c_customer::updaterec(qint16 cid, const QString& birth, const QString& cname,
                           const QString& sex, const QString& mobile, const QString& phone,
                           const QString& memo) const {
    return execute(
        strconn,
        u"update customer set birth=%2,cname=%3,sex=%4,mobile=%5,phone=%6,memo=%7 where cid=%1"_s,
        cid, birth, cname, sex, mobile, phone, memo);
}

bool c_customer::deleterec(qint16 cid) const {
    return execute(strconn, u"delete from customer where cid=%1"_s, cid);
}
