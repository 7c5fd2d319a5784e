// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/status_rows.h"

using namespace Qt::StringLiterals;

namespace gateway {

status_rows::status_rows(store& file)
    : figures_(
          file.database(),
          u"SELECT (SELECT count(*) FROM message WHERE state = 'queued') + (SELECT count(*) FROM "
          "message WHERE state = 'handing'), (SELECT count(*) FROM message WHERE done_at >= ?1 AND "
          "state IN ('accepted', 'delivered')), (SELECT count(*) FROM message WHERE state = "
          "'failed' AND since >= ?1), (SELECT count(*) FROM message WHERE state = 'unknown'), "
          "(SELECT count(*) FROM received WHERE confirmed_at IS NULL)"_s),
      messages_(file.database(), u"SELECT id, taken_at, mobile, text, state, reason FROM message "
                                 "ORDER BY id DESC LIMIT 50"_s),
      received_(file.database(), u"SELECT at, sender, text FROM received WHERE confirmed_at IS "
                                 "NULL ORDER BY id LIMIT 50"_s) {}

void status_rows::read(gateway_status& status, qint64 midnight) {
    const row_store figures = figures_.rows({midnight});
    status.waiting = figures.integer(0, 0);
    status.sent_today = figures.integer(0, 1);
    status.failed_today = figures.integer(0, 2);
    status.unknown = figures.integer(0, 3);
    status.held = figures.integer(0, 4);
    const row_store messages = messages_.rows();
    for (qsizetype row = 0; row < messages.rows(); ++row) {
        status.messages.append(
            {.id = messages.integer(row, 0),
             .taken_at = messages.integer(row, 1),
             .mobile = messages.text(row, 2),
             .text = messages.text(row, 3),
             .state = state_named(messages.text(row, 4)).value_or(message_state::dropped),
             .reason = messages.text(row, 5)});
    }
    const row_store received = received_.rows();
    for (qsizetype row = 0; row < received.rows(); ++row) {
        status.received.append(
            {received.integer(row, 0), received.text(row, 1), received.text(row, 2)});
    }
}

} // namespace gateway
