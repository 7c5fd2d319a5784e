// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/dispatch_rows.h"

using namespace Qt::StringLiterals;

namespace gateway {

dispatch_rows::dispatch_rows(store& file)
    : store_(file),
      queued_(file.database(),
              u"SELECT id, mobile, number, text, state, since, attempts FROM message WHERE state = "
              "'queued' AND next_at <= ?1 ORDER BY next_at, id LIMIT ?2"_s),
      unknown_(file.database(),
               u"SELECT id, mobile, number, text, state, since, attempts FROM message WHERE state "
               "= 'unknown' AND next_at <= ?1 ORDER BY next_at, id LIMIT ?2"_s),
      next_(file.database(),
            u"SELECT min(next_at) FROM message WHERE state = 'queued' UNION ALL SELECT "
            "min(next_at) FROM message WHERE state = 'unknown' AND next_at IS NOT NULL"_s),
      find_(
          file.database(),
          u"SELECT id, mobile, number, text, state, since, attempts FROM message WHERE id = ?1"_s),
      begin_(file.database(), u"UPDATE message SET state = 'handing', since = ?2, next_at = NULL, "
                              "attempts = attempts + 1 WHERE id = ?1 AND state = 'queued'"_s),
      change_(file.database(),
              u"UPDATE message SET state = ?2, since = ?3, next_at = ?4, network_ref = "
              "coalesce(?5, network_ref), reason = CASE WHEN state = ?2 THEN coalesce(?6, "
              "reason) ELSE ?6 END, done_at = CASE WHEN ?7 IS "
              "NOT NULL THEN coalesce(done_at, ?7) END WHERE id = ?1"_s),
      put_off_(file.database(),
               u"UPDATE message SET next_at = ?2 WHERE id = ?1 AND state = 'unknown'"_s),
      note_(file.database(), u"INSERT OR IGNORE INTO event (message, at, fate, ref, reason) VALUES "
                             "(?1, ?2, ?3, ?4, ?5)"_s) {}

QList<message_row> dispatch_rows::read(bound_statement& rows, const QVariantList& values) {
    const row_store read = rows.rows(values);
    QList<message_row> found;
    for (qsizetype row = 0; row < read.rows(); ++row) {
        found.append({.id = read.integer(row, 0),
                      .mobile = read.text(row, 1),
                      .number = read.text(row, 2),
                      .text = read.text(row, 3),
                      .state = state_named(read.text(row, 4)).value_or(message_state::dropped),
                      .since = read.integer(row, 5),
                      .attempts = static_cast<int>(read.integer(row, 6))});
    }
    return found;
}

QList<message_row> dispatch_rows::queued_until(qint64 now, int most) {
    return read(queued_, {now, most});
}

QList<message_row> dispatch_rows::unknown_until(qint64 now, int most) {
    return read(unknown_, {now, most});
}

std::optional<qint64> dispatch_rows::next_moment() {
    std::optional<qint64> earliest;
    const row_store moments = next_.rows();
    for (qsizetype row = 0; row < moments.rows(); ++row) {
        if (moments.type(row, 0) != row_store::Type::null) {
            earliest =
                std::min(earliest.value_or(moments.integer(row, 0)), moments.integer(row, 0));
        }
    }
    return earliest;
}

std::optional<message_row> dispatch_rows::find(message_id id) {
    const QList<message_row> found = read(find_, {id});
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

bool dispatch_rows::has_changed(bound_statement& statement, const QVariantList& values) {
    const qint64 before = store_.database().changed_rows();
    statement.run(values);
    return store_.database().changed_rows() != before;
}

bool dispatch_rows::begin(message_id id, qint64 now) {
    return has_changed(begin_, {id, now});
}

void dispatch_rows::change(const message_row& before, const message_change& change, qint64 now) {
    const auto given = [](const QString& text) { return text.isEmpty() ? QVariant() : text; };
    change_.run({before.id, name_of(change.state),
                 before.state == change.state ? before.since : now,
                 change.next_at ? QVariant(*change.next_at) : QVariant(), given(change.ref),
                 given(change.reason), is_settled(change.state) ? QVariant(now) : QVariant()});
}

bool dispatch_rows::put_off(message_id id, qint64 next_at) {
    return has_changed(put_off_, {id, next_at});
}

bool dispatch_rows::note(message_id id, const QString& fate, const QString& ref,
                         const QString& reason, qint64 now) {
    return has_changed(note_, {id, now, fate, ref, reason});
}

void dispatch_rows::doubt_handing(qint64 now) {
    store_.database().execute(
        u"UPDATE message SET state = 'unknown', since = ?1, next_at = ?1 WHERE state = 'handing'"_s,
        {now});
}

} // namespace gateway
