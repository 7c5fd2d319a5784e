// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_backend.h"

#include "gateway/gammu_health.h"
#include "gateway/gammu_parts.h"
#include "gateway/texts.h"
#include "platform/data_error.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// Looks are so much rarer while nothing is owed and no report awaited.
constexpr int idle_factor = 5;
/// How long a database that is out of order is waited for before a message is given back.
constexpr std::chrono::milliseconds database_pause{10'000};
/// How long the engine may stand still over what it was handed.
constexpr std::chrono::milliseconds silence = std::chrono::minutes(5);
/// Reports that are told in one look: the sink stores each.
constexpr int reports_a_look = 100;

/// Why gammu-smsd, which says of a message without a number that it was sent, shall not see this
/// one; nothing for one that it can send.
std::optional<handover> refusal_of(const outgoing_message& message) {
    static const QRegularExpression number(u"\\A\\+?[0-9]+\\z"_s);
    if (!number.match(message.number).hasMatch()) {
        return handover{handover_result::refused,
                        {},
                        texts::tr("this is no number"),
                        failure_cause::bad_number};
    }
    if (gammu_parts_of(message.text, message.id).parts.isEmpty()) {
        return handover{handover_result::refused,
                        {},
                        texts::tr("this text cannot be sent"),
                        failure_cause::content};
    }
    return std::nullopt;
}

} // namespace

gammu_backend::gammu_backend(gammu_settings settings) : settings_(std::move(settings)) {
    timer_.setSingleShot(true);
    timer_.callOnTimeout(&timer_, [this] { look(); });
}

void gammu_backend::start(network_sink& sink) {
    sink_ = &sink;
    health_.text = texts::tr("gammu-smsd's database is being opened");
    look_soon();
}

void gammu_backend::hand_over(const outgoing_message& message) {
    owed& one = owed_[message.id] = {.message = message};
    one.waiting.start();
    look_soon();
}

void gammu_backend::ask(message_id id) {
    owed& one = owed_[id] = {};
    one.waiting.start();
    look_soon();
}

void gammu_backend::look_soon() {
    timer_.start(0);
}

void gammu_backend::look() {
    more_ = false;
    told_this_look_ = 0;
    try {
        read_all();
    } catch (const DataError& error) {
        rows_.reset();
        set_health(health_of(settings_.database, error));
    }
    settle_silent();
    const bool is_busy = !owed_.isEmpty() || awaiting_;
    if (!timer_.isActive()) {
        timer_.start(more_     ? std::chrono::milliseconds(0)
                     : is_busy ? settings_.poll
                               : settings_.poll * idle_factor);
    }
}

void gammu_backend::read_all() {
    if (rows_ && !rows_->is_alive()) {
        rows_.reset();
    }
    if (!rows_) {
        rows_ = std::make_unique<gammu_rows>(settings_);
        fetched_ = 0;
        from_ = rows_->first_recent();
    }
    set_health(health_of(rows_->phone()));
    queue_new();
    find_asked();
    const auto traces = rows_->survey(from_);
    settle_lost(traces);
    follow(traces);
    fetch_received();
}

void gammu_backend::queue_new() {
    QList<outgoing_message> fresh;
    for (const message_id id : owed_.keys()) {
        const auto message = owed_[id].message;
        const auto refusal = message ? refusal_of(*message) : std::nullopt;
        if (refusal) {
            settle(id, *refusal);
        } else if (message) {
            fresh.append(*message);
        }
    }
    if (fresh.isEmpty()) {
        return;
    }
    std::sort(fresh.begin(), fresh.end(),
              [](const auto& left, const auto& right) { return left.id < right.id; });
    QHash<message_id, qint64> keys;
    rows_->together([&] {
        for (const outgoing_message& message : std::as_const(fresh)) {
            keys[message.id] = rows_->queue(message, gammu_parts_of(message.text, message.id));
        }
    });
    for (auto one = keys.cbegin(); one != keys.cend(); ++one) {
        owed_[one.key()].message.reset();
        owed_[one.key()].key = *one;
        from_ = std::min(from_, *one);
    }
}

void gammu_backend::find_asked() {
    for (const message_id id : owed_.keys()) {
        owed& one = owed_[id];
        if (one.message || one.key != 0) {
            continue;
        }
        one.key = rows_->find(id);
        if (one.key == 0) {
            // What was queued is found: in the queue, among what was sent, or marked as lost.
            settle(id, {.result = handover_result::not_now,
                        .reason = texts::tr("gammu-smsd never got it")});
        } else {
            from_ = std::min(from_, one.key);
        }
    }
}

void gammu_backend::settle_lost(const QMap<qint64, gammu_trace>& traces) {
    for (const message_id id : owed_.keys()) {
        const qint64 key = owed_[id].key;
        if (key != 0 && (!traces.contains(key) || traces[key].id != id)) {
            rows_->mark_lost(id);
            settle(id, to_handover(judge({.id = id})));
        }
    }
}

void gammu_backend::follow(const QMap<qint64, gammu_trace>& traces) {
    awaiting_ = false;
    bool is_open = false;
    for (auto one = traces.cbegin(); one != traces.cend(); ++one) {
        is_open = follow(one.key(), *one) || is_open;
        if (!is_open) {
            // Nothing before it need be read again.
            told_.remove(one.key());
            from_ = one.key() + 1;
        }
    }
}

/// True when more may come of it.
bool gammu_backend::follow(qint64 key, const gammu_trace& trace) {
    const gammu_verdict found = judge(trace);
    if (found.state == gammu_state::doubtful) {
        rows_->hold(key, trace.queued->put_away_until);
    } else if (found.state == gammu_state::sending) {
        still_.start();
    } else if (is_done(found.state) && trace.queued) {
        rows_->clear(key);
    }
    if (const auto one = owed_.constFind(trace.id); one != owed_.cend() && one->key == key) {
        follow_owed(key, trace, found);
    }
    if (!owed_.contains(trace.id)) {
        tell(key, trace.id, found);
    }
    const bool is_untold = is_done(found.state) && told_.value(key) != found;
    const bool may_come = more_may_come(trace, found.state);
    awaiting_ = awaiting_ || is_untold || (may_come && found.state != gammu_state::held);
    return is_untold || may_come || owed_.contains(trace.id);
}

void gammu_backend::follow_owed(qint64 key, const gammu_trace& trace, const gammu_verdict& found) {
    if (is_done(found.state)) {
        settle(trace.id, to_handover(found));
        const bool is_told =
            found.state == gammu_state::refused || found.state == gammu_state::accepted;
        told_[key] = is_told ? found : gammu_verdict();
    } else if (found.state == gammu_state::held || found.state == gammu_state::retrying) {
        settle(trace.id, to_handover(found));
    } else if (found.state == gammu_state::untouched && !health_.up && rows_->take_back(key)) {
        settle(trace.id, {.result = handover_result::not_now, .reason = health_.text});
    }
}

bool gammu_backend::more_may_come(const gammu_trace& trace, gammu_state state) const {
    if (!is_done(state)) {
        return trace.recent || state != gammu_state::held;
    }
    return settings_.reports && !is_final(state) && trace.recent;
}

void gammu_backend::settle_silent() {
    for (const message_id id : owed_.keys()) {
        const owed& one = owed_[id];
        if (one.key == 0 && one.waiting.hasExpired(database_pause.count())) {
            settle(id, {.result = one.message ? handover_result::not_now : handover_result::unknown,
                        .reason = health_.text});
        } else if (one.waiting.hasExpired(silence.count()) &&
                   (!still_.isValid() || still_.hasExpired(silence.count()))) {
            settle(id, {.reason = texts::tr("gammu-smsd stands still")});
        }
    }
}

void gammu_backend::settle(message_id id, const handover& outcome) {
    owed_.remove(id);
    still_.start();
    sink_->settle(id, outcome);
}

void gammu_backend::tell(qint64 key, message_id id, const gammu_verdict& found) {
    const auto news = to_report(id, found);
    if (!news || told_.value(key) == found) {
        return;
    }
    if (told_this_look_ >= reports_a_look) {
        more_ = true;
    } else if (sink_->take(*news)) {
        ++told_this_look_;
        told_[key] = found;
    }
}

void gammu_backend::fetch_received() {
    QList<qint64> fetched;
    const auto waiting = rows_->received_after(fetched_);
    for (const gammu_inbox_row& row : waiting) {
        if (const auto part = to_incoming(row)) {
            if (!(part->count > 1 ? sink_->take(*part) : sink_->take(part->piece))) {
                break;
            }
        }
        fetched.append(row.key);
    }
    if (!fetched.isEmpty()) {
        rows_->set_fetched(fetched);
        fetched_ = fetched.last();
        more_ = true;
    }
}

void gammu_backend::set_health(const network_health& now) {
    const bool is_news = now.up != health_.up || (!now.up && now.text != health_.text);
    health_ = now;
    if (is_news) {
        sink_->health_changed();
    }
}

void gammu_backend::check(const std::function<void(const QString& fault)>& done) {
    QTimer::singleShot(0, &timer_, [this, done] {
        network_health found;
        try {
            found = health_of(gammu_rows(settings_).phone());
        } catch (const DataError& error) {
            found = health_of(settings_.database, error);
        }
        done(found.up ? QString() : found.text);
    });
}

} // namespace gateway
