// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_recvedsms.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_recvedsms read(const Recordset& rs) {
    return {.smsrid = to_int16(rs.Fields(u"smsrid"_s)),
            .mobile = nvltrim(rs.Fields(u"mobile"_s)),
            .sms = nvltrim(rs.Fields(u"sms"_s)),
            .rtime = to_datetime(rs.Fields(u"rtime"_s)),
            .readed = to_boolean(rs.Fields(u"readed"_s)),
            .cname = nvltrim(rs.Fields(u"cname"_s)),
            .cid = to_int16(rs.Fields(u"cid"_s))};
}

} // namespace

c_recvedsms::c_recvedsms()
    : table_access({.all = u"select * From vwrecvedsms",
                    .one = u"SELECT * from vwrecvedsms where smsrid=%1",
                    .removal = u"delete from recvedsms where smsrid=%1",
                    .read = read}) {}

void c_recvedsms::searchsms(Recordset& rs) const {
    rs.Open(u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer"_s);
}

bool c_recvedsms::addrec(const QString& mobile, const QString& sms, const QDateTime& rtime,
                         bool /*readed*/) const {
    return execute(connection,
                   u"INSERT INTO recvedsms (mobile, sms, rtime, readed) values (%1,%2,%3,0)"_s,
                   mobile, sms, rtime);
}

bool c_recvedsms::updaterec(qint16 smsrid) const {
    return execute(strconn, u"update recvedsms set readed=1 where smsrid=%1"_s, smsrid);
}
