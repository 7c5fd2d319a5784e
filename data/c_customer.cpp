// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_customer.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_customer read(const Recordset& rs) {
    return {.cid = to_int16(rs.Fields(u"cid"_s)),
            .birth = nvltrim(rs.Fields(u"birth"_s)),
            .cname = nvltrim(rs.Fields(u"cname"_s)),
            .sex = nvltrim(rs.Fields(u"sex"_s)),
            .mobile = nvltrim(rs.Fields(u"mobile"_s)),
            .phone = nvltrim(rs.Fields(u"phone"_s)),
            .memo = nvltrim(rs.Fields(u"memo"_s))};
}

} // namespace

c_customer::c_customer()
    : table_access(
          {.all = u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer",
           .one = u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer where cid=%1",
           .removal = u"delete from customer where cid=%1",
           .read = read}) {}

void c_customer::searchsms(const QString& /*text*/, Recordset& rs) const {
    rs.Open(u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer"_s);
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
