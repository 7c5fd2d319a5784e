// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_sendsms.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"

using namespace Qt::StringLiterals;

namespace {

m_sendsms read(const Recordset& rs) {
    return {.smsid = to_int16(rs.Fields(u"smsid"_s)),
            .mobile = nvltrim(rs.Fields(u"mobile"_s)),
            .cid = to_int16(rs.Fields(u"cid"_s)),
            .sms = nvltrim(rs.Fields(u"sms"_s)),
            .sendisok = to_boolean(rs.Fields(u"sendisok"_s)),
            .rtime = to_datetime(rs.Fields(u"rtime"_s)),
            .stime = to_datetime(rs.Fields(u"stime"_s)),
            .cname = nvltrim(rs.Fields(u"cname"_s)),
            .smsfrom = to_boolean(rs.Fields(u"smsfrom"_s)),
            .imsend = to_boolean(rs.Fields(u"imsend"_s))};
}

} // namespace

c_sendsms::c_sendsms()
    : table_access({.all = u"SELECT * From vwsendsms",
                    .one = u"SELECT * From vwsendsms where smsid=%1",
                    .removal = u"delete from sendsms where smsid=%1",
                    .read = read}) {}

void c_sendsms::searchsms(m_sendsmses& queue) const {
    const QDateTime moment = now();
    const QDateTime today = moment.date().startOfDay();
    int id = -1;
    int mobile = -1;
    int sms = -1;
    // One by one: this runs over every pending message at every poll.
    const auto take = [&](const physical_database::result_row& row) {
        if (id < 0) {
            id = row.column(u"smsid");
            mobile = row.column(u"mobile");
            sms = row.column(u"sms");
        }
        const qint16 smsid = to_int16(row.value(id));
        if (!queue.contains(smsid)) {
            queue.Add({}, today, today, false, row.text(sms), 1, row.text(mobile), smsid);
        }
    };
    for_each_row(
        u"SELECT  * From vwsendsms where sendisok=0 and stime < #%1#"_s.arg(fmtdatetime(moment)),
        take);
}

bool c_sendsms::addrec(const QString& mobile, qint16 cid, const QString& sms, bool sendisok,
                       const QDateTime& rtime, const QDateTime& stime, bool smsfrom,
                       bool imsend) const {
    return execute(
        connection,
        u"INSERT INTO sendsms (mobile,  sms,cid, sendisok,  smsfrom, imsend, rtime, stime) values (%1,%2,%3,%4,%5,%6,%7,%8)"_s,
        mobile, sms, cid, sendisok, smsfrom, imsend, rtime, stime);
}

bool c_sendsms::updaterec(qint16 smsid, const QString& mobile, qint16 cid, const QString& sms,
                          const QDateTime& stime) const {
    return execute(strconn, u"update sendsms set mobile=%2,sms=%3,cid=%4,stime=%5 where smsid=%1"_s,
                   smsid, mobile, sms, cid, stime);
}

bool c_sendsms::sended(qint16 smsid) const {
    return execute(strconn, u"update sendsms set sendisok=-1  where smsid=%1"_s, smsid);
}
