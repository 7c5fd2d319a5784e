// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/relay_rules.h"
#include "gateway/store.h"
#include "platform/database/bound_statement.h"

#include <QList>

#include <optional>

namespace gateway {

/// A message on its way to the network.
struct message_row {
    message_id id = 0;
    QString mobile;
    QString number;
    QString text;
    message_state state = message_state::queued;
    qint64 since = 0;
    int attempts = 0;
};

/// A new state of a message and what goes with it. An empty reference leaves what was there; so
/// does an empty reason while the state stays.
struct message_change {
    message_state state = message_state::queued;
    std::optional<qint64> next_at;
    QString ref;
    QString reason;
};

/// What handing over reads and writes of the messages. Everything throws DataError.
class dispatch_rows {
public:
    explicit dispatch_rows(store& file);

    [[nodiscard]] QList<message_row> queued_until(qint64 now, int most);
    [[nodiscard]] QList<message_row> unknown_until(qint64 now, int most);
    /// The moment from which one of them gives a message.
    [[nodiscard]] std::optional<qint64> next_moment();
    [[nodiscard]] std::optional<message_row> find(message_id id);

    /// An attempt begins; false when the message no longer waits for one.
    [[nodiscard]] bool begin(message_id id, qint64 now);
    void change(const message_row& before, const message_change& change, qint64 now);
    /// When it is asked for again; false when it is not unknown any more.
    [[nodiscard]] bool put_off(message_id id, qint64 next_at);
    /// Notes what was told; false when it was told before.
    bool note(message_id id, const QString& fate, const QString& ref, const QString& reason,
              qint64 now);
    /// What a daemon left behind that ended in the middle is to be asked for.
    void doubt_handing(qint64 now);

private:
    [[nodiscard]] bool has_changed(bound_statement& statement, const QVariantList& values);
    [[nodiscard]] static QList<message_row> read(bound_statement& rows, const QVariantList& values);

    store& store_;
    bound_statement queued_;
    bound_statement unknown_;
    bound_statement next_;
    bound_statement find_;
    bound_statement begin_;
    bound_statement change_;
    bound_statement put_off_;
    bound_statement note_;
};

} // namespace gateway
