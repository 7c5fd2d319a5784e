// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

// Record access against SQLite's own interface, and the poll over a full queue.

#include "bench/bench_store.h"

#include "data/c_customer.h"
#include "data/c_sendsms.h"
#include "data/strconn.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

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

} // namespace
