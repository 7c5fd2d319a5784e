// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/simulator_backend.h"

#include "gateway/numbers.h"
#include "gateway/texts.h"
#include "gateway/try_store.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QUuid>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

constexpr auto again = 1s; // when the store could not be written

handover to_handover(const QString& outcome) {
    if (outcome == u"accepted") {
        return {.result = handover_result::accepted};
    }
    if (outcome == u"refused") {
        return {.result = handover_result::refused, .reason = texts::tr("simulated refusal")};
    }
    if (outcome == u"not now") {
        return {.result = handover_result::not_now, .reason = texts::tr("simulated throttling")};
    }
    return {.result = handover_result::unknown, .reason = texts::tr("simulated silence")};
}

} // namespace

simulator_backend::simulator_backend(store* file, clock& time, const simulator_settings& settings)
    : store_(file),
      clock_(time),
      settings_(settings),
      remember_(time.make_alarm([this] { remember(); })),
      later_(time) {}

void simulator_backend::start(network_sink& sink) {
    sink_ = &sink;
    physical_database& database = store_->database();
    database.execute(u"CREATE TABLE IF NOT EXISTS simulated (message INTEGER NOT NULL, at INTEGER "
                     "NOT NULL, outcome TEXT NOT NULL)"_s);
    database.execute(u"CREATE INDEX IF NOT EXISTS simulated_message ON simulated (message)"_s);
    insert_.emplace(database,
                    u"INSERT INTO simulated (message, at, outcome) VALUES (?1, ?2, ?3)"_s);
    find_.emplace(database, u"SELECT outcome FROM simulated WHERE message = ?1 AND outcome <> "
                            "'not now' ORDER BY rowid DESC LIMIT 1"_s);
}

network_health simulator_backend::health() const {
    return {up_,
            up_ ? texts::tr("simulated network") : texts::tr("simulated network, switched off")};
}

void simulator_backend::check(const std::function<void(const QString& fault)>& done) {
    later_.after(0ms, [done] { done({}); });
}

QString simulator_backend::roll() const {
    double chance = QRandomGenerator::global()->generateDouble();
    const std::array<std::pair<double, QString>, 3> outcomes{
        {{settings_.drop_rate, u"silence"_s},
         {settings_.fail_rate, u"refused"_s},
         {settings_.not_now_rate, u"not now"_s}}};
    for (const auto& [rate, outcome] : outcomes) {
        if (chance < rate) {
            return outcome;
        }
        chance -= rate;
    }
    return u"accepted"_s;
}

void simulator_backend::hand_over(const outgoing_message& message) {
    handed_.append({message, roll()});
    if (!remember_->is_set()) {
        remember_->set(0ms);
    }
}

/// What comes together is written together, before anybody is told of it.
void simulator_backend::remember() {
    const bool kept = try_store([this] {
        transaction all(store_->database());
        for (const handed& one : std::as_const(handed_)) {
            insert_->run({one.message.id, clock_.now(), one.outcome});
        }
        all.commit();
    });
    if (!kept) {
        remember_->set(again);
        return;
    }
    for (const handed& one : std::exchange(handed_, {})) {
        if (settings_.delay.count() == 0) {
            answer(one.message, one.outcome);
        } else {
            later_.after(settings_.delay, [this, one] { answer(one.message, one.outcome); });
        }
    }
}

void simulator_backend::answer(const outgoing_message& message, const QString& outcome) {
    sink_->settle(message.id, to_handover(outcome));
    if (outcome == u"accepted") {
        report_later(message);
    }
}

void simulator_backend::report_later(const outgoing_message& message) {
    if (settings_.report_delay.count() > 0) {
        const bool lost = QRandomGenerator::global()->generateDouble() < settings_.lose_rate;
        later_.after(settings_.report_delay, [this, id = message.id, lost] {
            const report told{.id = id,
                              .what = lost ? fate::undelivered : fate::delivered,
                              .cause = lost ? failure_cause::absent : failure_cause::unspecified};
            bring([this, told] { return sink_->take(told); });
        });
    }
    if (settings_.echo) {
        later_.after(settings_.echo_delay,
                     [this, message] { receive(message.number, u"回复："_s + message.text); });
    }
}

void simulator_backend::ask(message_id id) {
    QString outcome = u"not now"_s; // what is not in the table has never come
    try_store([&] {
        const row_store found = find_->rows({id});
        if (found.rows() > 0) {
            outcome = found.text(0, 0);
        }
    });
    later_.after(0ms, [this, id, outcome] { sink_->settle(id, to_handover(outcome)); });
}

QString simulator_backend::command(const QString& line) {
    const QString word = line.section(u' ', 0, 0);
    if (word == u"up" || word == u"down") {
        up_ = word == u"up";
        sink_->health_changed();
        return {};
    }
    const QString number = line.section(u' ', 1, 1);
    const QString text = line.section(u' ', 2);
    if (word != u"recv" || text.isEmpty()) {
        return texts::tr(R"(expected "recv NUMBER TEXT", "up" or "down")");
    }
    if (!is_number(number)) {
        return texts::tr("\"%1\" is not a number").arg(number);
    }
    receive(number, text);
    return {};
}

void simulator_backend::receive(const QString& sender, const QString& text) {
    const incoming_message message{.key = QUuid::createUuid().toString(QUuid::WithoutBraces),
                                   .sender = sender,
                                   .time = QDateTime::fromMSecsSinceEpoch(clock_.now()),
                                   .text = text};
    bring([this, message] { return sink_->take(message); });
}

/// Brings it again until it is kept.
void simulator_backend::bring(const std::function<bool()>& what) {
    if (!what()) {
        later_.after(again, [this, what] { bring(what); });
    }
}

} // namespace gateway
