// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/intake_rows.h"

using namespace Qt::StringLiterals;

namespace gateway {

intake_rows::intake_rows(store& file)
    : store_(file),
      insert_(
          file.database(),
          u"INSERT INTO message (client, mobile, number, text, digest, taken_at, answer, state, "
          "since, next_at) VALUES (?1, ?2, ?3, ?4, ?5, ?6, 'owed', 'queued', ?6, ?6)"_s),
      find_open_(file.database(),
                 u"SELECT id FROM message WHERE answer = 'open' AND client = ?1 AND digest = ?2 "
                 "AND taken_at > ?3 ORDER BY id LIMIT 1"_s),
      absorb_(file.database(),
              u"UPDATE message SET answer = 'owed', absorbed = absorbed + 1 WHERE id = ?1"_s),
      set_answer_(file.database(), u"UPDATE message SET answer = ?2 WHERE id = ?1"_s),
      close_open_(
          file.database(),
          u"UPDATE message SET answer = 'confirmed' WHERE answer = 'open' AND client = ?1"_s),
      has_open_(file.database(),
                u"SELECT 1 FROM message WHERE answer = 'open' AND client = ?1 LIMIT 1"_s) {}

message_id intake_rows::insert(const taken_message& message, qint64 now) {
    insert_.run(
        {message.client, message.mobile, message.number, message.text, message.digest, now});
    return store_.database().last_key();
}

std::optional<message_id> intake_rows::find_open(const taken_message& message, qint64 after) {
    const row_store found = find_open_.rows({message.client, message.digest, after});
    return found.rows() == 0 ? std::nullopt : std::optional(found.integer(0, 0));
}

void intake_rows::absorb(message_id id) {
    absorb_.run({id});
}

void intake_rows::set_answer(message_id id, answer_state answer) {
    set_answer_.run({id, name_of(answer)});
}

void intake_rows::close_open(const QString& client) {
    close_open_.run({client});
}

bool intake_rows::has_open(const QString& client) {
    return has_open_.rows({client}).rows() > 0;
}

void intake_rows::open_owed() {
    store_.database().execute(u"UPDATE message SET answer = 'open' WHERE answer = 'owed'"_s);
}

QString name_of(answer_state answer) {
    switch (answer) {
    case answer_state::owed:
        return u"owed"_s;
    case answer_state::open:
        return u"open"_s;
    case answer_state::confirmed:
        break;
    }
    return u"confirmed"_s;
}

} // namespace gateway
