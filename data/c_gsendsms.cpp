// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_gsendsms.h"

#include "data/nvltrim.h"
#include "platform/conversion.h"
#include "platform/database/connection.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype report_interval = 500; // in messages

QString addressees_of(qint16 cid, qint16 isall) {
    return isall != 0 ? u"select cid,mobile from customer "_s
                      : u"select cid,mobile from vwgroup where ccid= %1"_s.arg(literal(cid));
}

m_gsendsms read(const Recordset& rs) {
    return {.gsid = to_int16(rs.Fields(u"gsid"_s)),
            .cid = to_int16(rs.Fields(u"cid"_s)),
            .stime = to_datetime(rs.Fields(u"stime"_s)),
            .imsend = to_boolean(rs.Fields(u"imsend"_s)),
            .rtime = to_datetime(rs.Fields(u"rtime"_s)),
            .cname = nvltrim(rs.Fields(u"cname"_s)),
            .isall = to_int16(rs.Fields(u"isall"_s)),
            .sms = {}};
}

} // namespace

c_gsendsms::c_gsendsms()
    : table_access({.all = u"SELECT* From vwgsendsms",
                    .one = u"SELECT * From vwgsendsms where gsid=%1",
                    .removal = u"delete from gsendsms where gsid=%1",
                    .read = read}) {}

void c_gsendsms::searchsms(Recordset& rs) const {
    rs.Open(u"SELECT cid, birth, cname, sex, mobile, phone, memo From customer"_s);
}

bool c_gsendsms::addrec(const QString& sms, qint16 cid, bool imsend, qint16 isall,
                        const QDateTime& rtime, const QDateTime& stime,
                        const progress_report& report) const {
    try {
        Connection cn;
        cn.ConnectionString = connection;
        cn.Open();
        // One commit makes thousands of inserts durable at the cost of one; it comes after an error
        // too.
        transaction writing(cn.database());
        try {
            expand(cn,
                   {.cid = cid,
                    .stime = stime,
                    .imsend = imsend,
                    .rtime = rtime,
                    .cname = {},
                    .isall = isall,
                    .sms = sms},
                   report);
        } catch (const std::exception&) {
            writing.commit();
            throw;
        }
        writing.commit();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void c_gsendsms::expand(Connection& connection, const m_gsendsms& send,
                        const progress_report& report) {
    connection.Execute(
        u"INSERT INTO gsendsms (cid,sms,  imsend,  isall,stime, rtime) values (%1,%2,%3,%4,%5,%6)"_s
            .arg(literal(send.cid), literal(send.sms), literal(send.imsend), literal(send.isall),
                 literal(send.stime), literal(send.rtime)));
    Recordset addressees;
    addressees.set_ActiveConnection(connection);
    addressees.Open(addressees_of(send.cid, send.isall));
    // What is the same in every message is written once: this may run 32,767 times.
    const QString before =
        u"INSERT INTO sendsms (mobile,  sms,cid, sendisok,  smsfrom, imsend, rtime, stime) values ("_s;
    const QString text = u',' + literal(send.sms) + u',';
    const QString after =
        u",0,-1,%1,%2,%3)"_s.arg(literal(send.imsend), literal(send.rtime), literal(send.stime));
    const row_store& rows = addressees.store();
    for (qsizetype row = 0; row < rows.rows(); ++row) {
        if (report && row % report_interval == 0) {
            report(row);
        }
        const qint16 customer = to_int16(rows.value(row, 0));
        connection.Execute(before + literal(rows.text(row, 1)) + text + literal(customer) + after);
    }
}

std::optional<qint32> c_gsendsms::count_addressees(qint16 cid, qint16 isall) const {
    return read_one(u"select count(*) as addressees from (%1)"_s.arg(addressees_of(cid, isall)),
                    [](const Recordset& rs) { return rs.Fields(u"addressees"_s).toInt(); });
}

bool c_gsendsms::updaterec(qint16 gsid, qint16 cid, bool imsend, qint16 isall,
                           const QDateTime& rtime, const QDateTime& stime) const {
    return execute(
        strconn, u"update gsendsms set cid=%2,imsend=%3,isall=%4,rtime=%5,stime=%6 where gsid=%1"_s,
        gsid, cid, imsend, isall, rtime, stime);
}
