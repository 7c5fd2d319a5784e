// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/dispatch_engine.h"

#include "data/c_parameter.h"
#include "data/c_sendsms.h"
#include "messaging/gateway_frame.h"
#include "platform/database/exclusive_lease.h"
#include "platform/try_step.h"

namespace {

// In milliseconds: as the timers stand at first, and after startTimer.
constexpr int first_poll_interval = 60000;
constexpr int first_reply_timeout = 10000;
constexpr int started_poll_interval = 2000;
constexpr int started_reply_timeout = 60000;
constexpr int finishing_poll_interval = 1000;

} // namespace

dispatch_engine::dispatch_engine(const collaborators& used, QObject* parent)
    : QObject(parent), used_(used), unwritten_(used.outgoing, used.received) {
    Timer1.set_Interval(first_poll_interval);
    Timer2.set_Enabled(false);
    Timer2.set_Interval(first_reply_timeout);
    connect(&Timer1, &IntervalTimer::Timer, this, &dispatch_engine::initsend);
    connect(&Timer2, &IntervalTimer::Timer, this, &dispatch_engine::Timer2_Timer);
    connect(&Winsock1, &Winsock::DataArrival, this, &dispatch_engine::Winsock1_DataArrival);
}

void dispatch_engine::startTimer() {
    Timer1.set_Interval(started_poll_interval);
    Timer2.set_Interval(started_reply_timeout);
}

void dispatch_engine::StopTomer() {
    Timer1.set_Interval(0);
    Timer2.set_Interval(0);
}

void dispatch_engine::initsend() {
    // Whoever's turn it is: these messages are not to be sent again.
    if (unwritten_.retry()) {
        emit sent();
        emit stored();
    }
    if (finishing_) {
        end_when_done();
        return;
    }
    if (!take_turn()) {
        forget_queue();
        return;
    }
    // The link and the queue go on with what there is; the next poll tries again.
    try_step([this] {
        if (!parameters_) {
            parameters_ = used_.parameters.getrec();
        }
    });
    try_step([this] { connect_when_closed(); });
    try_step([this] { used_.outgoing.searchsms(used_.queue); });
    hold_back_accepted();
    sendsms();
}

bool dispatch_engine::take_turn() {
    if (used_.turn == nullptr) {
        return true;
    }
    // A link in error is never opened again. What is tried on it reaches nobody; once the message
    // that was in flight is given up and what was accepted is marked, another client may send.
    if (Winsock1.State() == Winsock::StateEnum::error) {
        if (sendready_ && unwritten_.unmarked().isEmpty()) {
            used_.turn->release();
        }
        return true;
    }
    return used_.turn->try_take();
}

/// Another client sends what waits here; only the message in flight is still to be answered.
void dispatch_engine::forget_queue() {
    used_.queue.keep_first(sendready_ ? 0 : 1);
}

/// What the gateway has accepted does not go out again because its mark is still to be written.
void dispatch_engine::hold_back_accepted() {
    for (const qint16 smsid : unwritten_.unmarked()) {
        used_.queue.Remove(m_sendsmses::key_of(smsid));
    }
}

void dispatch_engine::connect_when_closed() {
    const Winsock::StateEnum state = Winsock1.State();
    if (state != Winsock::StateEnum::closed && state != Winsock::StateEnum::closing) {
        return;
    }
    Winsock1.Close();
    Winsock1.RemoteHost = parameters_.value().ip;
    Winsock1.RemotePort = parameters_.value().port;
    Winsock1.Connect();
}

void dispatch_engine::sendsms() {
    if (finishing_) {
        end_when_done();
        return;
    }
    const m_sendsms* first = used_.queue.Item(1);
    if (!sendready_ || first == nullptr || !take_turn()) {
        return;
    }
    sendready_ = false;
    Timer2.set_Enabled(true);
    // A message that cannot be written counts as in flight all the same; the time-out releases it.
    try_step([this, first] {
        Winsock1.SendData(
            gateway_frame::to_bytes(gateway_frame::outgoing(first->mobile, first->sms)));
    });
}

void dispatch_engine::sendend(const bool& ok) {
    sendready_ = true;
    Timer2.set_Enabled(false);
    if (const m_sendsms* first = used_.queue.Item(1)) {
        if (ok && unwritten_.mark_sent(first->smsid)) {
            emit sent();
        }
        used_.queue.Remove(1);
    }
    sendsms();
}

void dispatch_engine::finish() {
    finishing_ = true;
    forget_queue();
    Timer1.set_Interval(finishing_poll_interval);
    if (Timer2.Interval() <= 0) {
        Timer2.set_Interval(first_reply_timeout);
    }
    end_when_done();
}

void dispatch_engine::end_when_done() {
    if (!sendready_ && Winsock1.State() == Winsock::StateEnum::connected) {
        return;
    }
    if (unwritten_.is_empty() || gives_up_) {
        Timer1.set_Enabled(false);
        emit finished();
    } else if (!Timer2.Enabled()) {
        Timer2.set_Enabled(true); // what cannot be written gets as long as an answer
    }
}

void dispatch_engine::Timer2_Timer() {
    sendready_ = true;
    gives_up_ = finishing_;
    sendend(false);
}

void dispatch_engine::Winsock1_DataArrival() {
    try_step([this] { take_frame(gateway_frame::from_bytes(Winsock1.GetData())); });
}

void dispatch_engine::take_frame(const QString& frame) {
    if (frame.startsWith(u'0')) {
        if (unwritten_.store(gateway_frame::parse_received(frame))) {
            emit stored();
        }
    } else if (frame.startsWith(u'1')) {
        sendend(true);
    } else if (frame.startsWith(u'2')) {
        sendend(false);
    }
}
