// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/gammu_database.h"
#include "gateway/gammu_inbox.h"
#include "gateway/gammu_parts.h"
#include "gateway/gammu_verdict.h"

#include <QMap>

namespace gateway {

/// A daemon that has signed itself into `phones`.
struct gammu_phone {
    QString name;    ///< its PhoneID, or the device's number
    int signal = -1; ///< percent; negative when it is not known
    bool alive = false;
};

/// What this gateway asks and tells gammu-smsd through its tables. Everything throws DataError.
///
/// The engine writes times of day in local time, apart from the columns UpdatedInDB, which its
/// triggers fill in UTC. It takes a message into its hand by setting SendingTimeOut a minute ahead;
/// one that failed waits for SendingTimeOut too, for as long as its RetryTimeout says.
class gammu_rows {
public:
    /// Opens the database and makes sure that the tables are those that are known and can be
    /// written.
    explicit gammu_rows(const gammu_settings& wanted);

    [[nodiscard]] bool is_alive() const { return database_.is_alive(); }
    void together(const std::function<void()>& work) { database_.together(work); }

    /// Queues a message in these parts and gives its key. What was queued under the same id before
    /// goes, if the engine does not have it in hand; if it does, that is the message, and its key
    /// is given. To be called within together().
    [[nodiscard]] qint64 queue(const outgoing_message& message, const gammu_text& text);
    /// Takes a message back that the engine never touched. False if it did.
    [[nodiscard]] bool take_back(qint64 key);
    /// Keeps the engine from sending a message that it had put away until then.
    void hold(qint64 key, const QString& put_away_until);
    /// Leaves a held row for a message that the engine lost, so that it is not taken for one that
    /// never was queued.
    void mark_lost(message_id id);
    /// Takes what was sent out of the queue, where a dying engine left it.
    void clear(qint64 key);

    /// The key that a message was last queued with; 0 if it never was. Reads every row.
    [[nodiscard]] qint64 find(message_id id);
    /// The key from which on there are messages that reports may still come for.
    [[nodiscard]] qint64 first_recent();
    /// Everything in the queue, and what was tried from a key on, by key; all as it is at one
    /// moment.
    [[nodiscard]] QMap<qint64, gammu_trace> survey(qint64 from);

    /// Up to 50 messages that nobody has fetched, from behind a key on.
    [[nodiscard]] QList<gammu_inbox_row> received_after(qint64 key);
    void set_fetched(const QList<qint64>& keys);

    /// The daemon that gave a sign of life last.
    [[nodiscard]] std::optional<gammu_phone> phone();

private:
    void expect_tables();
    [[nodiscard]] QString creator_of(message_id id) const;

    gammu_database database_;
    QString phone_id_;
    QString creator_prefix_;
    bool reports_;
};

} // namespace gateway
