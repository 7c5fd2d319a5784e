// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/dispatcher.h"

#include "gateway/console.h"
#include "gateway/texts.h"
#include "gateway/try_store.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

/// How long what comes together is gathered before it is written together.
constexpr std::chrono::milliseconds gathering = 20ms;
/// When the store could not be written.
constexpr std::chrono::milliseconds store_pause = 1s;
constexpr std::chrono::milliseconds longest_wait = 24h;
/// At the end, for what is under way; what is not settled then is asked for at the next start.
constexpr std::chrono::milliseconds last_outcomes = 3s;
/// When a message is asked for, should the answer not come to be kept.
constexpr std::chrono::milliseconds asked_again_at_last = 1min;

/// What the list of events calls it, and what a refusal is in the words of reports.
QString event_name(handover_result result) {
    switch (result) {
    case handover_result::accepted:
        return name_of(fate::accepted);
    case handover_result::refused:
        return name_of(fate::refused);
    case handover_result::not_now:
        return u"not now"_s;
    case handover_result::unknown:
        break;
    }
    return u"unknown"_s;
}

} // namespace

dispatcher::dispatcher(store& file, backend& network, clock& time, postman& received,
                       told_failures told)
    : store_(file),
      network_(network),
      clock_(time),
      received_(received),
      told_(told),
      rows_(file),
      run_(time.make_alarm([this] { run(); })),
      keep_(time.make_alarm([this] { keep_outcomes(); })) {}

void dispatcher::start() {
    rows_.doubt_handing(clock_.now());
    network_.start(*this);
    wake();
}

void dispatcher::wake() {
    if (!ending_ && (!run_->is_set() || waiting_long_)) {
        waiting_long_ = false;
        run_->set(gathering);
    }
}

void dispatcher::end(std::function<void()> ended) {
    ending_ = true;
    run_->stop();
    ended_ = clock_.make_alarm(std::move(ended));
    ended_->set(under_way_.isEmpty() && outcomes_.isEmpty() ? 0ms : last_outcomes);
}

void dispatcher::health_changed() {
    complain(texts::tr("network: %1").arg(network_.health().text));
    wake();
}

int dispatcher::room() const {
    return network_.window() - static_cast<int>(under_way_.size());
}

void dispatcher::run() {
    waiting_long_ = false;
    if (ending_ || !network_.health().up) {
        return;
    }
    ask_for_unknown();
    hand_over_due();
    wait_for_next();
}

void dispatcher::hand_over_due() {
    if (room() <= 0) {
        waiting_for_room_ = true;
        return;
    }
    QList<message_row> due;
    const qint64 now = clock_.now();
    const bool begun = try_store([&] {
        due = rows_.queued_until(now, room());
        due.removeIf([this](const auto& row) { return under_way_.contains(row.id); });
        if (due.isEmpty()) {
            return;
        }
        transaction all(store_.database());
        write_outcomes(); // one sync for both
        // A person may have dropped one meanwhile.
        due.removeIf([this, now](const auto& row) { return !rows_.begin(row.id, now); });
        all.commit();
    });
    if (!begun || due.isEmpty()) {
        return;
    }
    forget_outcomes();
    for (const message_row& row : due) {
        under_way_.insert(row.id);
        network_.hand_over({row.id, row.number, row.text});
    }
    waiting_for_room_ = room() <= 0;
}

void dispatcher::ask_for_unknown() {
    if (room() <= 0) {
        return;
    }
    QList<message_row> doubtful;
    const qint64 now = clock_.now();
    const bool noted = try_store([&] {
        doubtful = rows_.unknown_until(now, room());
        doubtful.removeIf([this](const auto& row) { return under_way_.contains(row.id); });
        if (doubtful.isEmpty()) {
            return;
        }
        transaction all(store_.database());
        doubtful.removeIf([this, now](const auto& row) {
            return !rows_.put_off(row.id, now + asked_again_at_last.count());
        });
        all.commit();
    });
    for (const message_row& row : noted ? doubtful : QList<message_row>()) {
        under_way_.insert(row.id);
        network_.ask(row.id);
    }
}

void dispatcher::wait_for_next() {
    if (room() <= 0) {
        return; // goes on when something is settled
    }
    std::optional<qint64> next;
    if (!try_store([&] { next = rows_.next_moment(); })) {
        run_->set(store_pause);
    } else if (next) {
        waiting_long_ = true;
        run_->set(std::clamp<std::chrono::milliseconds>(
            std::chrono::milliseconds(*next - clock_.now()), gathering, longest_wait));
    }
}

void dispatcher::settle(message_id id, const handover& outcome) {
    if (!under_way_.remove(id)) {
        return;
    }
    outcomes_.append({id, outcome});
    if (!keep_->is_set()) {
        keep_->set(gathering);
    }
    if (waiting_for_room_ && !ending_) {
        waiting_for_room_ = false;
        waiting_long_ = false;
        run_->set(0ms);
    }
}

void dispatcher::keep_outcomes() {
    if (outcomes_.isEmpty()) {
        return;
    }
    const bool kept = try_store([this] {
        transaction all(store_.database());
        write_outcomes();
        all.commit();
    });
    if (!kept) {
        keep_->set(store_pause);
        return;
    }
    forget_outcomes();
    wake();
}

void dispatcher::write_outcomes() {
    for (const auto& [id, outcome] : std::as_const(outcomes_)) {
        keep_outcome(id, outcome);
    }
}

void dispatcher::forget_outcomes() {
    outcomes_.clear();
    keep_->stop();
    if (ending_ && under_way_.isEmpty()) {
        ended_->set(0ms);
    }
    received_.look();
}

void dispatcher::keep_outcome(message_id id, const handover& outcome) {
    const auto row = rows_.find(id);
    if (!row) {
        return;
    }
    const qint64 now = clock_.now();
    const message_change change = change_for(*row, outcome, now);
    rows_.change(*row, change, now);
    rows_.note(id, event_name(outcome.result), outcome.ref, outcome.reason, now);
    if (change.state == message_state::failed && row->state != message_state::failed) {
        tell_failure(*row, fate::refused, outcome.cause, now);
    }
}

message_change dispatcher::change_for(const message_row& row, const handover& outcome,
                                      qint64 now) const {
    message_change change{.state = state_after(row.state, outcome.result),
                          .next_at = {},
                          .ref = outcome.ref,
                          .reason = outcome.reason};
    if (change.state == message_state::failed && row.state != message_state::failed) {
        change.reason = failure_reason(outcome.reason, fate::refused, outcome.cause);
    } else if (change.state == message_state::queued) {
        change.next_at = now + pause_after(row.attempts).count();
    } else if (change.state == message_state::unknown) {
        const qint64 unknown_for = row.state == message_state::unknown ? now - row.since : 0;
        const auto pause = ask_again_after(std::chrono::milliseconds(unknown_for));
        change.next_at = pause ? std::optional(now + pause->count()) : std::nullopt;
    }
    return change;
}

bool dispatcher::take(const report& told) {
    const bool kept = try_store([&] {
        joined_transaction all(store_.database());
        const qint64 now = clock_.now();
        const auto row = rows_.find(told.id);
        if (row && rows_.note(told.id, name_of(told.what), told.ref, told.reason, now)) {
            const message_state state = state_after(row->state, told.what);
            const bool fails = state == message_state::failed && row->state != state;
            if (state != row->state) {
                const QString reason =
                    fails ? failure_reason(told.reason, told.what, told.cause) : told.reason;
                rows_.change(*row, {state, {}, told.ref, reason}, now);
            }
            if (fails) {
                tell_failure(*row, told.what, told.cause, now);
            }
        }
        all.commit();
    });
    received_.look();
    return kept;
}

void dispatcher::tell_failure(const message_row& row, fate told, failure_cause cause, qint64 now) {
    if (is_told(told_, row.text, told)) {
        // The key is what makes it one a message.
        received_.rows().insert({.key = u"notice:%1"_s.arg(row.id),
                                 .sender = row.number,
                                 .time = QDateTime::fromMSecsSinceEpoch(now),
                                 .text = failure_notice(row.text, told, cause)},
                                row.mobile);
    }
}

bool dispatcher::take_together(const std::function<bool()>& work) {
    bool taken = false;
    const bool kept = try_store([&] {
        transaction all(store_.database());
        taken = work();
        if (taken) {
            all.commit();
        }
    });
    received_.look();
    return kept && taken;
}

bool dispatcher::take(const incoming_message& message) {
    return received_.keep(message);
}

bool dispatcher::take(const incoming_part& part) {
    return received_.keep(part);
}

} // namespace gateway
