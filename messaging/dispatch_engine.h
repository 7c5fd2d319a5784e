// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_parameter.h"
#include "messaging/unwritten_answers.h"
#include "platform/interval_timer.h"
#include "platform/winsock.h"

#include <QObject>

#include <optional>

class c_parameter;
class c_recvedsms;
class c_sendsms;
class exclusive_lease;
class m_sendsmses;

/// Pushes due messages to the gateway, one at a time: the next goes out when the gateway has
/// answered or the reply time-out has fired. Stores what the gateway reports as received. Of
/// several clients on one database, the one whose turn it is does all this; the others ask at every
/// poll.
class dispatch_engine : public QObject {
    Q_OBJECT

public:
    /// What the engine works on; all of it outlives the engine.
    struct collaborators {
        const c_parameter& parameters;
        const c_sendsms& outgoing;
        const c_recvedsms& received;
        m_sendsmses& queue;
        exclusive_lease* turn = nullptr; ///< without one, it is always this client's turn
    };

    explicit dispatch_engine(const collaborators& used, QObject* parent = nullptr);

    /// Polls every 2 s and waits 60 s for a verdict.
    void startTimer();
    /// Stops both timers; a message in flight is then released by a verdict alone.
    void StopTomer();
    /// Makes sure that the link is up, tops the queue up and sends.
    void initsend();
    /// Takes the gateway's verdict on the message in flight and goes on with the next.
    void sendend(const bool& ok);
    /// Sends the first message of the queue unless one is in flight.
    void sendsms();
    /// Ends its work: sends nothing more, and emits finished() as soon as the message in flight is
    /// answered and all answers are written, or have not been within the reply time-out; at once
    /// when there is nothing to wait for.
    void finish();

    /// No message is in flight.
    [[nodiscard]] bool sendready() const noexcept { return sendready_; }

    // The engine's controls, named for whoever drives or watches them.
    IntervalTimer Timer1; ///< the poll
    IntervalTimer Timer2; ///< the reply time-out
    Winsock Winsock1;

signals:
    void finished();
    /// A message has been marked as sent.
    void sent();
    /// A received message has been stored.
    void stored();

private:
    [[nodiscard]] bool take_turn();
    void forget_queue();
    void hold_back_accepted();
    void connect_when_closed();
    void end_when_done();
    void Timer2_Timer();
    void Winsock1_DataArrival();
    void take_frame(const QString& frame);

    collaborators used_;
    unwritten_answers unwritten_;
    std::optional<m_parameter> parameters_; ///< read once and kept
    bool sendready_ = true;
    bool finishing_ = false;
    bool gives_up_ = false; ///< finishing has taken as long as it may
};
