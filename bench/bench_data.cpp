// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

// Record access against SQLite's own interface, and the poll over a full queue.

#include "bench/bench_store.h"

#include "data/c_customer.h"
#include "data/c_gsendsms.h"
#include "data/c_sendsms.h"
#include "data/strconn.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>

using namespace Qt::StringLiterals;

namespace {

void durable_update_twin(benchmark::State& state) {
    const bench_store store;
    bench_store::fill_customers(1);
    sqlite3* database = nullptr;
    sqlite3_open(store.path().toUtf8().constData(), &database);
    sqlite3_exec(database, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    int number = 0;
    for (const auto step : state) {
        const QByteArray statement =
            "update customer set memo='" + QByteArray::number(++number) + "' where cid=1";
        if (sqlite3_exec(database, statement.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            state.SkipWithError("the update failed");
        }
    }
    sqlite3_close(database);
}
BENCHMARK(durable_update_twin)->MinTime(1)->Unit(benchmark::kMicrosecond);

void record_save(benchmark::State& state) {
    const bench_store store;
    bench_store::fill_customers(1);
    c_customer access;
    access.connection = strconn;
    int number = 0;
    for (const auto step : state) {
        if (!access.updaterec(1, u"1980-01-01"_s, u"张三"_s, u"男"_s, u"13900000001"_s, {},
                              QString::number(++number))) {
            state.SkipWithError("the save failed");
        }
    }
}
BENCHMARK(record_save)->MinTime(1)->Unit(benchmark::kMicrosecond);

/// `queued`: how many of the pending messages are in the queue already.
void searchsms(benchmark::State& state, bool queued) {
    const bench_store store;
    bench_store::fill_messages(static_cast<int>(state.range(0)));
    c_sendsms access;
    access.connection = strconn;
    m_sendsmses full;
    access.searchsms(full);
    for (const auto step : state) {
        m_sendsmses empty;
        access.searchsms(queued ? full : empty);
    }
}
BENCHMARK_CAPTURE(searchsms, all_queued, true)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(most_rows)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchsms, none_queued, false)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(most_rows)
    ->Unit(benchmark::kMillisecond);

/// The same inserts as plain statements in one transaction.
void group_send_twin(benchmark::State& state) {
    const bench_store store;
    sqlite3* database = nullptr;
    sqlite3_open(store.path().toUtf8().constData(), &database);
    sqlite3_exec(database, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    for (const auto step : state) {
        sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr);
        for (int row = 1; row <= state.range(0); ++row) {
            const std::string number = std::to_string(row);
            const std::string statement =
                "INSERT INTO sendsms (mobile,  sms,cid, sendisok,  smsfrom, imsend, rtime, stime) "
                "values ('13900000" +
                number + "','节日快乐，感谢您一直以来的支持！'," + number +
                ",0,-1,0,'2024/01/31 08:00:00','2024/01/31 09:00:00')";
            sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr);
        }
        sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
    }
    sqlite3_close(database);
}
BENCHMARK(group_send_twin)->Arg(1000)->Arg(10000)->Arg(most_rows)->Unit(benchmark::kMillisecond);

void group_send(benchmark::State& state) {
    const bench_store store;
    bench_store::fill_customers(static_cast<int>(state.range(0)));
    c_gsendsms access;
    access.connection = strconn;
    const QDateTime moment(QDate(2024, 1, 31), QTime(8, 0));
    for (const auto step : state) {
        if (!access.addrec(u"节日快乐，感谢您一直以来的支持！"_s, 0, false, -1, moment, moment)) {
            state.SkipWithError("the group send failed");
        }
    }
}
BENCHMARK(group_send)->Arg(1000)->Arg(10000)->Arg(most_rows)->Unit(benchmark::kMillisecond);

} // namespace
