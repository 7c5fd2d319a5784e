// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/unwritten_answers.h"

#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"

namespace {

/// Of all texts kept at a time: far more than 32,767 messages have, a bound for a gateway gone mad.
constexpr qsizetype most_characters = 16'777'216;

} // namespace

unwritten_answers::unwritten_answers(const c_sendsms& outgoing, const c_recvedsms& received)
    : outgoing_(outgoing), received_(received) {}

bool unwritten_answers::mark_sent(qint16 smsid) {
    if (outgoing_.sended(smsid)) {
        return true;
    }
    unmarked_.append(smsid);
    return false;
}

bool unwritten_answers::store(const gateway_frame::received& message) {
    if (unstored_.isEmpty() && write(message)) {
        return true;
    }
    const bool can_ever_be = is_writable(message.mobile) && is_writable(message.text);
    if (can_ever_be && characters_ + message.text.size() <= most_characters) {
        characters_ += message.text.size();
        unstored_.append(message);
    }
    return false;
}

bool unwritten_answers::retry() {
    const qsizetype kept = unmarked_.size() + unstored_.size();
    while (!unmarked_.isEmpty() && outgoing_.sended(unmarked_.first())) {
        unmarked_.removeFirst();
    }
    while (!unstored_.isEmpty() && write(unstored_.first())) {
        characters_ -= unstored_.first().text.size();
        unstored_.removeFirst();
    }
    return unmarked_.size() + unstored_.size() < kept;
}

bool unwritten_answers::write(const gateway_frame::received& message) const {
    return received_.addrec(message.mobile, message.text, message.time, false);
}
