// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/cleaner.h"

#include "gateway/try_store.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

constexpr std::chrono::milliseconds parts_wait = 24h;
constexpr std::chrono::milliseconds one_day = 24h;

} // namespace

cleaner::cleaner(store& file, clock& time, postman& received, int keep_days)
    : store_(file),
      clock_(time),
      postman_(received),
      keep_ms_(keep_days * one_day.count()),
      old_messages_(file.database(), u"DELETE FROM message WHERE id IN (SELECT id FROM message "
                                     "WHERE done_at < ?1 ORDER BY done_at LIMIT 100)"_s),
      old_events_(file.database(),
                  u"DELETE FROM event WHERE message IN (SELECT id FROM message WHERE done_at < ?1 "
                  "ORDER BY done_at LIMIT 100)"_s),
      old_received_(file.database(),
                    u"DELETE FROM received WHERE id IN (SELECT id FROM received WHERE confirmed_at "
                    "< ?1 ORDER BY confirmed_at LIMIT 100)"_s),
      old_parts_(file.database(), u"DELETE FROM part WHERE whole IS NOT NULL AND key IN (SELECT "
                                  "key FROM part WHERE taken_at < ?1 LIMIT 100)"_s),
      next_(time.make_alarm([this] { next_->set(step() ? 50ms : 1h); })) {
    next_->set(1min);
}

bool cleaner::step() {
    bool changed = false;
    bool joined = false;
    try_store([&] {
        const qint64 before = store_.database().changed_rows();
        const qint64 now = clock_.now();
        transaction all(store_.database());
        joined = postman_.rows().give_up_parts(now - parts_wait.count());
        old_events_.run({now - keep_ms_}); // while their messages still tell which they are
        old_messages_.run({now - keep_ms_});
        old_received_.run({now - keep_ms_});
        old_parts_.run({now - keep_ms_});
        all.commit();
        changed = store_.database().changed_rows() != before;
    });
    if (joined) {
        postman_.look();
    }
    return changed;
}

} // namespace gateway
