// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_store.h"

#include "data/schema.h"
#include "data/strconn.h"
#include "platform/connection.h"
#include "platform/connection_pool.h"

using namespace Qt::StringLiterals;

namespace {

/// `statement` runs once a row, with the row's number for %1.
void fill(int rows, const QString& statement) {
    Connection connection;
    connection.ConnectionString = strconn;
    connection.Open();
    connection.BeginTrans();
    for (int row = 1; row <= rows; ++row) {
        connection.Execute(statement.arg(row, 5, 10, QChar(u'0')));
    }
    connection.CommitTrans();
    connection.Close();
}

} // namespace

bench_store::bench_store() {
    strconn = make_strconn(folder_.path());
    ensure_database(strconn);
}

bench_store::~bench_store() {
    connection_pool::clear();
}

void bench_store::fill_customers(int rows) {
    fill(
        rows,
        u"INSERT INTO customer (birth, cname, sex, mobile, phone, memo) values ('1980-01-01','客户%1','男','139000%1','010-%1','老客户，常来')"_s);
}

void bench_store::fill_messages(int rows) {
    fill(
        rows,
        u"INSERT INTO sendsms (mobile,  sms,cid, sendisok,  smsfrom, imsend, rtime, stime) values ('139000%1','您好，您预订的商品已经到货，请有空时来取，谢谢光临。%1',%1,0,0,-1,'2024/01/31 08:00:00','2024/01/31 08:00:00')"_s);
}
