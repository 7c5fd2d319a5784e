// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"
#include "gateway/relay_rules.h"
#include "gateway/store.h"
#include "platform/database/bound_statement.h"

#include <optional>

namespace gateway {

/// A message as its client brought it.
struct taken_message {
    QString client;
    QString mobile;
    QString number;
    QString text;
    QString digest;
};

/// What the taking of frames reads and writes of the messages. Everything throws DataError.
class intake_rows {
public:
    explicit intake_rows(store& file);

    /// A new message, its answer owed.
    message_id insert(const taken_message& message, qint64 now);
    /// The oldest message of this client with an open answer and the same frame, taken after a
    /// time.
    [[nodiscard]] std::optional<message_id> find_open(const taken_message& message, qint64 after);
    /// A frame was taken for this message again.
    void absorb(message_id id);
    void set_answer(message_id id, answer_state answer);
    /// Nothing is to be repeated by this client any more.
    void close_open(const QString& client);
    [[nodiscard]] bool has_open(const QString& client);
    /// What a daemon left behind that ended in the middle.
    void open_owed();

private:
    store& store_;
    bound_statement insert_;
    bound_statement find_open_;
    bound_statement absorb_;
    bound_statement set_answer_;
    bound_statement close_open_;
    bound_statement has_open_;
};

/// The name of an answer's state in the store.
[[nodiscard]] QString name_of(answer_state answer);

} // namespace gateway
