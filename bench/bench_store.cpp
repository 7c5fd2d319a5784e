// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_store.h"

#include "bench/plain_database.h"

#include "data/schema.h"
#include "data/strconn.h"
#include "platform/database/connection_pool.h"

bench_store::bench_store() {
    use();
    ensure_database(strconn);
    plain_database(path()).execute("update parameters set port=1"); // where nobody answers
}

bench_store::~bench_store() {
    connection_pool::clear();
}

void bench_store::use() const {
    strconn = make_strconn(folder_.path());
}

std::string bench_store::path() const {
    return folder_.filePath(QStringLiteral("sms.old.mdb")).toStdString();
}

void bench_store::fill(const char* statement, int rows) const {
    plain_database database(path());
    const plain_database::statement insert = database.prepare(statement);
    database.execute("BEGIN");
    for (int row = 1; row <= rows; ++row) {
        sqlite3_bind_int(insert.get(), 1, row);
        sqlite3_bind_int(insert.get(), 2, rows);
        database.step(insert);
        sqlite3_reset(insert.get());
    }
    database.execute("COMMIT");
    database.execute("PRAGMA wal_checkpoint(TRUNCATE)");
}

void bench_store::fill_customers(int rows) const {
    fill(R"(INSERT INTO customer (birth, cname, sex, mobile, phone, memo)
            SELECT iif(?1 = ?2, '2020-02-02', date('1950-01-01', (code % 20000) || ' days')),
                   '客户' || code, iif(?1 = ?2, '不详', iif(code % 2, '男', '女')), printf('139%08d', code),
                   printf('010-%08d', code), '老客户，第' || code || '位，常来'
            FROM (SELECT iif(?1 = ?2, 99999, ?1 * 12345 % 32749) AS code))",
         rows);
}

void bench_store::fill_messages(int rows) const {
    fill(R"(INSERT INTO sendsms (mobile, sms, cid, imsend, rtime, stime)
            VALUES (printf('139%08d', ?1),
                    '您好，您预订的商品已经到货，请有空时来取，谢谢光临。' || ?1, ?1 % ?2, -1,
                    '2024/01/31 08:00:00', '2024/01/31 08:00:00'))",
         rows);
}
