// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/store.h"
#include "platform/database/bound_statement.h"

#include <optional>

namespace gateway {

/// A received message that no client surely has yet.
struct waiting_message {
    qint64 id = 0;
    QString sender; ///< as the network gave it
    QString mobile; ///< what the client is told instead, or empty
    QDateTime time;
    QString text;
};

/// The received messages and their parts. Everything throws DataError.
class received_rows {
public:
    explicit received_rows(store& file);

    /// False when the network brought it before. `mobile` goes to the client in the sender's place.
    bool insert(const incoming_message& message, const QString& mobile = {});
    /// A part; with the last one the whole is inserted. True when that happened.
    bool insert(const incoming_part& part, qint64 now);
    /// Inserts the messages whose parts have waited since before a time, with dots for what never
    /// came. True when there was one.
    bool give_up_parts(qint64 taken_before);

    /// The first that waits, of those with a higher number.
    [[nodiscard]] std::optional<waiting_message> waiting_after(qint64 id);
    void set_written(qint64 id, qint64 now);
    void set_confirmed(qint64 id, qint64 now);

private:
    /// The waiting parts of one message as a whole, if there are `least` of them.
    bool join(const QVariantList& group, int least);

    store& store_;
    bound_statement insert_;
    bound_statement insert_part_;
    bound_statement parts_;
    bound_statement use_part_;
    bound_statement old_parts_;
    bound_statement waiting_;
    bound_statement written_;
    bound_statement confirmed_;
};

} // namespace gateway
