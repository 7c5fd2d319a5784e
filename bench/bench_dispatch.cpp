// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_store.h"
#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/plain_database.h"
#include "bench/responder.h"

#include "data/c_parameter.h"
#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"
#include "data/strconn.h"
#include "messaging/dispatch_engine.h"

#include <QEventLoop>

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <deque>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int few = 300;
constexpr int many = 30000;

/// What sends the pending messages of a store, a slice at a time.
class sender {
public:
    sender() = default;
    virtual ~sender() = default;
    Q_DISABLE_COPY_MOVE(sender)

    /// Reads what is pending.
    virtual void load() = 0;
    /// Sends and marks that many.
    virtual void advance(int messages) = 0;
};

/// The program's own engine, connected to the gateway.
class engine_side : public sender {
public:
    explicit engine_side(const bench_store& store) : store_(store) {
        store.use();
        parameters_.connection = strconn;
        outgoing_.connection = strconn;
        received_.connection = strconn;
        QObject::connect(&engine_.Winsock1, &Winsock::DataArrival, &loop_, [this] {
            if (queue_.Count() == stop_at_) {
                loop_.quit();
            }
        });
        outgoing_.now = [] { return QDateTime(QDate(2000, 1, 1), QTime(0, 0)); }; // nothing is due
        engine_.initsend();
        while (engine_.Winsock1.State() != Winsock::StateEnum::connected) {
            loop_.processEvents(QEventLoop::WaitForMoreEvents);
        }
        outgoing_.now = system_clock;
    }

    void load() override {
        store_.use();
        engine_.initsend();
    }

    void advance(int messages) override {
        store_.use();
        stop_at_ = queue_.Count() - messages;
        engine_.Winsock1.blockSignals(false);
        emit engine_.Winsock1.DataArrival(); // the answer that came between the slices
        loop_.exec();
        engine_.Winsock1.blockSignals(true); // no other side's event loop drives this engine
    }

private:
    const bench_store& store_;
    QEventLoop loop_;
    qsizetype stop_at_ = 0;
    c_parameter parameters_;
    c_sendsms outgoing_;
    c_recvedsms received_;
    m_sendsmses queue_;
    dispatch_engine engine_{{parameters_, outgoing_, received_, queue_}};
};

std::u16string text16(const plain_database::statement& row, int column) {
    return static_cast<const char16_t*>(sqlite3_column_text16(row.get(), column));
}

/// The same round trips and the same durable updates by hand.
class twin_side : public sender {
public:
    twin_side(const std::string& path, int port) : database_(path), connection_(connect_to(port)) {}
    ~twin_side() override { close(connection_); }
    Q_DISABLE_COPY_MOVE(twin_side)

    void load() override {
        const auto rows = database_.prepare("SELECT smsid, mobile, sms FROM vwsendsms WHERE "
                                            "sendisok=0 AND stime < '2030/01/01 00:00:00'");
        while (database_.step(rows)) {
            queue_.push_back({sqlite3_column_int(rows.get(), 0), text16(rows, 1), text16(rows, 2)});
        }
    }

    void advance(int messages) override {
        const auto mark = database_.prepare("update sendsms set sendisok=-1 where smsid=?");
        for (int sent = 0; sent < messages; ++sent) {
            const message& first = queue_.front();
            const std::string length = std::to_string(first.mobile.size());
            exchange(std::u16string(length.begin(), length.end()) + first.mobile + first.sms);
            sqlite3_bind_int(mark.get(), 1, first.smsid);
            database_.step(mark);
            sqlite3_reset(mark.get());
            queue_.pop_front();
        }
    }

private:
    struct message {
        int smsid = 0;
        std::u16string mobile;
        std::u16string sms;
    };

    void exchange(const std::u16string& frame) const {
        std::array<char, 64> answer{};
        if (send(connection_, frame.data(), frame.size() * 2, 0) < 0 ||
            recv(connection_, answer.data(), answer.size(), 0) < 1 || answer[0] != '1') {
            throw std::runtime_error("no answer");
        }
    }

    plain_database database_;
    int connection_;
    std::deque<message> queue_;
};

/// A store of its own for one side.
struct gateway_store : bench_store {
    gateway_store(int rows, int port) {
        fill_messages(rows);
        plain_database(path()).execute("update parameters set ip='127.0.0.1', port=" +
                                       std::to_string(port));
    }
};

/// One side over a store of pending messages, measured slice by slice: what else the machine does
/// with its disk then falls on all sides, and the median is not that of a few long runs.
class runner {
public:
    runner(const bench_store& store, sender& side, int rows)
        : database_(store.path()), side_(side), rows_(rows) {}

    void run_slice() {
        if (left_ == 0) {
            load_cost_ = milliseconds([this] { side_.load(); }) / rows_;
            left_ = rows_;
        }
        const double took = milliseconds([this] { side_.advance(few); });
        rates_.push_back(1000 / (took / few + load_cost_));
        left_ -= few;
        if (left_ == 0) {
            start_again();
        }
    }

    /// Messages per second.
    [[nodiscard]] double rate() const { return median(rates_); }

private:
    /// All messages pending again; none may have been left over.
    void start_again() {
        if (database_.number("select count(*) from sendsms where sendisok=0") != 0) {
            throw std::runtime_error("a message was not sent");
        }
        database_.execute("update sendsms set sendisok=0");
        database_.execute("PRAGMA wal_checkpoint(TRUNCATE)");
    }

    plain_database database_;
    sender& side_;
    int rows_;
    int left_ = 0;
    double load_cost_ = 0;
    std::vector<double> rates_;
};

/// Both sides, each over a store of its own.
class contest {
public:
    contest(int rows, int port) : rows_(rows), port_(port) {}

    void run_slice() {
        ours_.run_slice();
        twin_.run_slice();
    }

    void print_rates() const {
        print({.operation = "dispatch",
               .rows = rows_,
               .ours = ours(),
               .twin = twin_.rate(),
               .unit = "/s",
               .kind = bound::ratio_at_least,
               .limit = 0.85});
    }

    [[nodiscard]] double ours() const { return ours_.rate(); }

private:
    int rows_;
    int port_;
    gateway_store our_store_{rows_, port_};
    gateway_store twin_store_{rows_, port_};
    engine_side engine_{our_store_};
    twin_side by_hand_{twin_store_.path(), port_};
    runner ours_{our_store_, engine_, rows_};
    runner twin_{twin_store_, by_hand_, rows_};
};

} // namespace

void bench_dispatch(int gateway_port) {
    contest small(few, gateway_port);
    contest large(many, gateway_port);
    for (int slice = 0; slice < many / few; ++slice) {
        large.run_slice();
        if (slice % 4 == 0) {
            small.run_slice();
        }
    }
    small.print_rates();
    large.print_rates();
    print({.operation = "dispatch, 30,000 pending against 300",
           .rows = many,
           .ours = large.ours(),
           .twin = small.ours(),
           .unit = "/s",
           .kind = bound::ratio_at_least,
           .limit = 0.9});
}
