// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_store.h"
#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/plain_database.h"

#include "data/c_gsendsms.h"
#include "data/c_sendsms.h"
#include "data/strconn.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

struct message {
    std::string mobile;
    std::string sms;
};

std::string text(const plain_database::statement& row, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(row.get(), column));
}

/// Every pending message into a map by its number.
void search_by_hand(plain_database& database) {
    const auto rows = database.prepare(
        "SELECT  * From vwsendsms where sendisok=0 and stime < '2030/01/01 00:00:00'");
    std::unordered_map<int, message> found;
    while (database.step(rows)) {
        found.try_emplace(sqlite3_column_int(rows.get(), 0), message{text(rows, 1), text(rows, 2)});
    }
}

constexpr const char* greeting = "节日快乐，感谢您一直以来的支持！";
constexpr const char* record_time = "2024/01/31 08:00:00";
constexpr const char* send_time = "2024/01/31 09:00:00";

/// The same statements in one transaction.
void group_send_by_hand(plain_database& database) {
    const std::string moments = std::string("'") + record_time + "','" + send_time + "')";
    database.execute("BEGIN IMMEDIATE");
    database.execute(std::string("INSERT INTO gsendsms (cid,sms,  imsend,  isall,stime, rtime) "
                                 "values (0,'") +
                     greeting + "',0,-1," + moments);
    const auto rows = database.prepare("select cid,mobile from customer ");
    while (database.step(rows)) {
        database.execute("INSERT INTO sendsms (mobile,  sms,cid, sendisok,  smsfrom, imsend, "
                         "rtime, stime) values ('" +
                         text(rows, 1) + "','" + greeting + "'," + text(rows, 0) + ",0,-1,0," +
                         moments);
    }
    database.execute("COMMIT");
}

QDateTime moment(const char* text) {
    return QDateTime::fromString(QString::fromLatin1(text), u"yyyy/MM/dd HH:mm:ss"_s);
}

double group_send_cost(plain_database& database, int rows, const std::function<void()>& send) {
    database.execute("delete from sendsms");
    database.execute("PRAGMA wal_checkpoint(TRUNCATE)");
    const double took = milliseconds(send);
    if (database.number("select count(*) from sendsms where sendisok=0 and smsfrom=-1") != rows) {
        throw std::runtime_error("a message is missing");
    }
    return took;
}

} // namespace

void bench_search() {
    std::vector<double> costs;
    for (const int rows : growth_rows) {
        const bench_store store;
        store.fill_messages(rows);
        plain_database database(store.path());
        c_sendsms access;
        access.connection = strconn;
        const auto ours = [&] {
            m_sendsmses queue;
            return milliseconds([&] { access.searchsms(queue); });
        };
        const auto twin = [&] { return milliseconds([&] { search_by_hand(database); }); };
        const medians took = in_turn(15, ours, twin);
        const bool is_longest = rows == growth_rows.back(); // of a short one, what is paid once
        print({.operation = "search of pending",
               .rows = rows,
               .ours = took.ours,
               .twin = took.twin,
               .kind = is_longest ? bound::ratio_at_most : bound::none,
               .limit = 1.25});
        costs.push_back(took.ours);
    }
    print_growth("search of pending", costs);
}

void bench_group_send() {
    std::vector<double> costs;
    for (const int rows : growth_rows) {
        const bench_store store;
        store.fill_customers(rows);
        plain_database database(store.path());
        c_gsendsms access;
        access.connection = strconn;
        const auto by_program = [&] {
            if (!access.addrec(QString::fromUtf8(greeting), 0, false, -1, moment(record_time),
                               moment(send_time))) {
                throw std::runtime_error("the group send failed");
            }
        };
        const auto ours = [&] { return group_send_cost(database, rows, by_program); };
        const auto twin = [&] {
            return group_send_cost(database, rows, [&] { group_send_by_hand(database); });
        };
        const medians took = in_turn(9, ours, twin);
        print({.operation = "group send",
               .rows = rows,
               .ours = took.ours,
               .twin = took.twin,
               .kind = bound::ratio_at_most,
               .limit = 2.5});
        costs.push_back(took.ours);
    }
    print_growth("group send", costs);
}
