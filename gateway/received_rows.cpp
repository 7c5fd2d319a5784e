// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/received_rows.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace gateway {

received_rows::received_rows(store& file)
    : store_(file),
      insert_(file.database(), u"INSERT OR IGNORE INTO received (key, sender, mobile, at, text) "
                               "VALUES (?1, ?2, ?3, ?4, ?5)"_s),
      insert_part_(file.database(),
                   u"INSERT OR IGNORE INTO part (key, sender, reference, number, count, at, text, "
                   "taken_at) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)"_s),
      parts_(file.database(),
             u"SELECT number, key, at, text FROM part WHERE whole IS NULL AND sender = ?1 AND "
             "reference = ?2 AND count = ?3 ORDER BY number, taken_at"_s),
      use_part_(file.database(), u"UPDATE part SET whole = ?2, text = '' WHERE key = ?1"_s),
      old_parts_(file.database(), u"SELECT sender, reference, count FROM part WHERE whole IS NULL "
                                  "AND taken_at < ?1 LIMIT 1"_s),
      waiting_(file.database(), u"SELECT id, sender, mobile, at, text FROM received WHERE "
                                "confirmed_at IS NULL AND id > ?1 ORDER BY id LIMIT 1"_s),
      written_(file.database(), u"UPDATE received SET written_at = ?2 WHERE id = ?1"_s),
      confirmed_(file.database(), u"UPDATE received SET confirmed_at = ?2 WHERE id = ?1"_s) {}

bool received_rows::insert(const incoming_message& message, const QString& mobile) {
    const qint64 before = store_.database().changed_rows();
    insert_.run({message.key, message.sender, mobile.isEmpty() ? QVariant() : mobile,
                 message.time.toMSecsSinceEpoch(), message.text});
    return store_.database().changed_rows() != before;
}

bool received_rows::insert(const incoming_part& part, qint64 now) {
    const incoming_message& piece = part.piece;
    if (part.count < 2 || part.number < 1 || part.number > part.count) {
        return insert(piece);
    }
    const qint64 before = store_.database().changed_rows();
    insert_part_.run({piece.key, piece.sender, part.reference, part.number, part.count,
                      piece.time.toMSecsSinceEpoch(), piece.text, now});
    return store_.database().changed_rows() != before &&
           join({piece.sender, part.reference, part.count}, part.count);
}

bool received_rows::give_up_parts(qint64 taken_before) {
    const row_store old = old_parts_.rows({taken_before});
    return old.rows() > 0 && join({old.text(0, 0), old.integer(0, 1), old.integer(0, 2)}, 1);
}

bool received_rows::join(const QVariantList& group, int least) {
    struct part {
        QString key;
        qint64 at = 0;
        QString text;
    };
    // References come again: of two parts with one number the newer belongs to what came last.
    QMap<int, part> parts;
    const row_store stored = parts_.rows(group);
    for (qsizetype row = 0; row < stored.rows(); ++row) {
        parts.insert(static_cast<int>(stored.integer(row, 0)),
                     {stored.text(row, 1), stored.integer(row, 2), stored.text(row, 3)});
    }
    if (parts.size() < least) {
        return false;
    }
    QString text;
    for (int number = 1; number <= group.at(2).toInt(); ++number) {
        text += parts.contains(number) ? parts[number].text : u"…"_s;
    }
    const QString key = u"parts:"_s + parts.first().key;
    for (const part& used : std::as_const(parts)) {
        use_part_.run({used.key, key});
    }
    return insert(
        {key, group.at(0).toString(), QDateTime::fromMSecsSinceEpoch(parts.first().at), text});
}

std::optional<waiting_message> received_rows::waiting_after(qint64 id) {
    const row_store found = waiting_.rows({id});
    if (found.rows() == 0) {
        return std::nullopt;
    }
    return waiting_message{found.integer(0, 0), found.text(0, 1), found.text(0, 2),
                           QDateTime::fromMSecsSinceEpoch(found.integer(0, 3)), found.text(0, 4)};
}

void received_rows::set_written(qint64 id, qint64 now) {
    written_.run({id, now});
}

void received_rows::set_confirmed(qint64 id, qint64 now) {
    confirmed_.run({id, now});
}

} // namespace gateway
