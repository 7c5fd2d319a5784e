// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_rows.h"

#include "gateway/texts.h"
#include "platform/data_error.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// The version of the tables in gammu-smsd 1.42.
constexpr int known_version = 17;

/// A column of a table, from a statement's row.
int number(const QString& column) {
    return column.toInt();
}

/// Of a message that was queued again, what was queued last counts.
void drop_superseded(QMap<qint64, gammu_trace>& traces) {
    QHash<message_id, qint64> last;
    for (auto one = traces.cbegin(); one != traces.cend(); ++one) {
        last.insert(one->id, one.key());
    }
    traces.removeIf([&last](auto one) { return last.value(one->id) != one.key(); });
}

} // namespace

gammu_rows::gammu_rows(const gammu_settings& wanted)
    : database_(wanted),
      phone_id_(wanted.phone_id),
      creator_prefix_(wanted.phone_id.isEmpty() ? u"smsgateway/"_s
                                                : u"smsgateway/%1/"_s.arg(wanted.phone_id)),
      reports_(wanted.reports) {
    expect_tables();
}

void gammu_rows::expect_tables() {
    const auto versions = database_.rows(u"SELECT Version FROM gammu"_s);
    if (versions.size() != 1 || number(versions.first().first()) != known_version) {
        throw DataError(DataError::Kind::cannot_open,
                        texts::tr("its tables are not of version %1").arg(known_version));
    }
    (void)survey(0);
    (void)received_after(0);
    (void)phone();
    // Tells a file that can only be read.
    database_.together([this] { database_.run(u"UPDATE gammu SET Version = Version"_s); });
}

QString gammu_rows::creator_of(message_id id) const {
    return creator_prefix_ + QString::number(id);
}

qint64 gammu_rows::queue(const outgoing_message& message, const gammu_text& text) {
    const QString creator = creator_of(message.id);
    database_.run(u"DELETE FROM outbox_multipart WHERE ID IN (SELECT ID FROM outbox WHERE "
                  "CreatorID = ?1 AND (SendingTimeOut = SendingDateTime OR SendingTimeOut >= "
                  "'9999-01-01'))"_s,
                  {creator});
    database_.run(u"DELETE FROM outbox WHERE CreatorID = ?1 AND (SendingTimeOut = SendingDateTime "
                  "OR SendingTimeOut >= '9999-01-01')"_s,
                  {creator});
    const auto in_hand = database_.rows(u"SELECT ID FROM outbox WHERE CreatorID = ?1"_s, {creator});
    if (!in_hand.isEmpty()) {
        return in_hand.first().first().toLongLong();
    }
    const QString coding =
        text.is_unicode ? u"Unicode_No_Compression"_s : u"Default_No_Compression"_s;
    const gammu_part& first = text.parts.first();
    // Due since yesterday: neither a clock that is set back nor another time zone holds it up.
    database_.run(
        u"INSERT INTO outbox (DestinationNumber, TextDecoded, UDH, Coding, MultiPart, CreatorID, "
        "SenderID, DeliveryReport, InsertIntoDB, SendingDateTime, SendingTimeOut) VALUES (?1, ?2, "
        "?3, ?4, ?5, ?6, ?7, ?8, datetime('now', 'localtime'), datetime('now', 'localtime', '-1 "
        "day'), datetime('now', 'localtime', '-1 day'))"_s,
        {message.number, first.text, first.udh, coding,
         text.parts.size() > 1 ? u"true"_s : u"false"_s, creator, phone_id_,
         reports_ ? u"yes"_s : u"no"_s});
    const qint64 key = database_.last_key();
    for (qsizetype i = 1; i < text.parts.size(); ++i) {
        database_.run(u"INSERT INTO outbox_multipart (ID, SequencePosition, TextDecoded, UDH, "
                      "Coding) VALUES (?1, ?2, ?3, ?4, ?5)"_s,
                      {key, i + 1, text.parts[i].text, text.parts[i].udh, coding});
    }
    return key;
}

bool gammu_rows::take_back(qint64 key) {
    bool taken = false;
    together([&] {
        taken = database_.run(
            u"DELETE FROM outbox WHERE ID = ?1 AND SendingTimeOut = SendingDateTime"_s, {key});
        if (taken) {
            database_.run(u"DELETE FROM outbox_multipart WHERE ID = ?1"_s, {key});
        }
    });
    return taken;
}

void gammu_rows::hold(qint64 key, const QString& put_away_until) {
    database_.run(u"UPDATE outbox SET SendingTimeOut = '9999-12-31 23:59:59' WHERE ID = ?1 AND "
                  "SendingTimeOut = ?2"_s,
                  {key, put_away_until});
}

void gammu_rows::mark_lost(message_id id) {
    database_.run(u"INSERT INTO outbox (CreatorID, SendingDateTime, SendingTimeOut) VALUES (?1, "
                  "'9999-12-31 00:00:00', '9999-12-31 23:59:59')"_s,
                  {creator_of(id)});
}

void gammu_rows::clear(qint64 key) {
    together([&] {
        database_.run(u"DELETE FROM outbox WHERE ID = ?1"_s, {key});
        database_.run(u"DELETE FROM outbox_multipart WHERE ID = ?1"_s, {key});
    });
}

qint64 gammu_rows::find(message_id id) {
    const auto found =
        database_.rows(u"SELECT max(ID) FROM (SELECT ID FROM outbox WHERE CreatorID = ?1 UNION ALL "
                       "SELECT ID FROM sentitems WHERE CreatorID = ?1)"_s,
                       {creator_of(id)});
    return found.first().first().toLongLong();
}

qint64 gammu_rows::first_recent() {
    // One behind the last where there is none.
    return database_
        .rows(u"SELECT coalesce(min(CASE WHEN SendingDateTime > datetime('now', 'localtime', '-4 "
              "days') THEN ID END), max(ID) + 1, 0) FROM sentitems"_s)
        .first()
        .first()
        .toLongLong();
}

QMap<qint64, gammu_trace> gammu_rows::survey(qint64 from) {
    // A message is in hand when it was put away for a minute, and left there when that time is over
    // or a daemon began after it was taken; within the same second it may be that daemon's.
    const auto rows = database_.rows(
        u"SELECT 0, ID, CreatorID, SendingTimeOut <> SendingDateTime, SendingTimeOut <> "
        "SendingDateTime AND strftime('%s', SendingTimeOut) - strftime('%s', UpdatedInDB, "
        "'localtime') <= 60, SendingTimeOut < datetime('now', 'localtime') OR began > "
        "datetime(UpdatedInDB, 'localtime') OR began = datetime(UpdatedInDB, 'localtime') AND "
        "UpdatedInDB < datetime('now', '-10 seconds'), SendingTimeOut >= '9999-01-01', 1 + (SELECT "
        "count(*) FROM outbox_multipart WHERE outbox_multipart.ID = outbox.ID), SendingTimeOut, "
        "UpdatedInDB > datetime('now', '-4 days') FROM outbox, (SELECT max(InsertIntoDB) AS began "
        "FROM phones WHERE ?3 IN ('', ID)) WHERE substr(CreatorID, 1, length(?2)) = ?2 UNION ALL "
        "SELECT SequencePosition, ID, CreatorID, Status, StatusError, StatusCode, TPMR, '', '', "
        "SendingDateTime > datetime('now', 'localtime', '-4 days') FROM sentitems WHERE ID >= ?1 "
        "AND substr(CreatorID, 1, length(?2)) = ?2 ORDER BY 2, 1"_s,
        {from, creator_prefix_, phone_id_});
    QMap<qint64, gammu_trace> traces;
    for (const QStringList& row : rows) {
        bool ok = false;
        const message_id id = row.at(2).sliced(creator_prefix_.size()).toLongLong(&ok);
        if (!ok) {
            continue;
        }
        gammu_trace& trace = traces[row.at(1).toLongLong()];
        trace.id = id;
        trace.recent = number(row.at(9)) != 0;
        if (number(row.at(0)) == 0) {
            const bool sending = number(row.at(4)) != 0;
            trace.queued = {
                number(row.at(3)) != 0, sending,           sending && number(row.at(5)) != 0,
                number(row.at(6)) != 0, number(row.at(7)), row.at(8)};
        } else {
            trace.sent.append({row.at(3), number(row.at(4)), number(row.at(5)), number(row.at(6))});
        }
    }
    drop_superseded(traces);
    return traces;
}

QList<gammu_inbox_row> gammu_rows::received_after(qint64 key) {
    QList<gammu_inbox_row> found;
    // A status above 0 is that of an answer to a service code (USSD), which somebody at the machine
    // asked for.
    for (const QStringList& row : database_.rows(
             u"SELECT ID, RecipientID, SenderNumber, ReceivingDateTime, Coding, UDH, Text, "
             "TextDecoded FROM inbox WHERE ID > ?1 AND Processed = 'false' AND Status <= 0 AND ?2 "
             "IN ('', RecipientID) ORDER BY ID LIMIT 50"_s,
             {key, phone_id_})) {
        found.append({row.at(0).toLongLong(), row.at(1), row.at(2), row.at(3), row.at(4), row.at(5),
                      row.at(6), row.at(7)});
    }
    return found;
}

void gammu_rows::set_fetched(const QList<qint64>& keys) {
    together([&] {
        for (const qint64 key : keys) {
            database_.run(u"UPDATE inbox SET Processed = 'true' WHERE ID = ?1"_s, {key});
        }
    });
}

std::optional<gammu_phone> gammu_rows::phone() {
    // The engine renews its sign of life every StatusFrequency, a minute unless it is told
    // otherwise, but not while it sends a message.
    const auto rows = database_.rows(
        u"SELECT coalesce(nullif(ID, ''), IMEI), Signal, max(TimeOut, datetime(UpdatedInDB, "
        "'localtime')) > datetime('now', 'localtime', '-2 minutes') FROM phones WHERE ?1 IN ('', ID) ORDER BY TimeOut DESC LIMIT 1"_s,
        {phone_id_});
    if (rows.isEmpty()) {
        return std::nullopt;
    }
    const QStringList& row = rows.first();
    return gammu_phone{row.at(0), number(row.at(1)), number(row.at(2)) != 0};
}

} // namespace gateway
