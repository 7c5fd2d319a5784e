// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "messaging/gateway_frame.h"

#include <QList>

class c_recvedsms;
class c_sendsms;

/// Writes what the gateway answers, and keeps in memory what the database cannot take now (a full
/// disk, a lock): messages that were accepted and not marked, and received ones, in their order.
class unwritten_answers {
public:
    /// Both outlive this.
    unwritten_answers(const c_sendsms& outgoing, const c_recvedsms& received);

    // Each tells whether something was written.

    /// Marks a message that the gateway has accepted.
    [[nodiscard]] bool mark_sent(qint16 smsid);
    /// Stores a received message behind those that wait. Lost are one that no statement can carry,
    /// and one that comes when more wait than memory is to be spent on.
    [[nodiscard]] bool store(const gateway_frame::received& message);
    /// Tries again to write what is kept.
    [[nodiscard]] bool retry();

    /// Accepted by the gateway, but still pending in the database.
    [[nodiscard]] const QList<qint16>& unmarked() const noexcept { return unmarked_; }
    [[nodiscard]] bool is_empty() const { return unmarked_.isEmpty() && unstored_.isEmpty(); }

private:
    [[nodiscard]] bool write(const gateway_frame::received& message) const;

    const c_sendsms& outgoing_;
    const c_recvedsms& received_;
    QList<qint16> unmarked_;
    QList<gateway_frame::received> unstored_;
    qsizetype characters_ = 0; ///< of the texts in unstored_
};
