// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_verdict.h"

#include "gateway/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// What the network said when it took the message from the modem: the causes of 3GPP TS 24.011.
failure_cause cause_of_refusal(int code) {
    switch (code) {
    case 1:  // unassigned number
    case 28: // unidentified subscriber
    case 30: // unknown subscriber
        return failure_cause::bad_number;
    case 8:  // operator determined barring
    case 10: // call barred
        return failure_cause::blocked;
    case 27: // destination out of service
        return failure_cause::absent;
    default:
        return failure_cause::unspecified;
    }
}

/// What a report said: the values of TP-Status in 3GPP TS 23.040.
failure_cause cause_of_report(int code) {
    switch (code) {
    case 0x43: // not obtainable
        return failure_cause::bad_number;
    case 0x42: // rejected by the phone
    case 0x63: // service rejected
        return failure_cause::blocked;
    case 0x46: // validity period expired
        return failure_cause::expired;
    case 0x61: // busy
    case 0x62: // no response
        return failure_cause::absent;
    default:
        return failure_cause::unspecified;
    }
}

bool is_refusal(const gammu_sent& part) {
    return part.status == u"SendingError" || part.status == u"Error";
}

bool has_status(const gammu_sent& part, QStringView status) {
    return part.status == status;
}

gammu_verdict judge_sent(const QList<gammu_sent>& sent) {
    const auto first = [&sent](auto matches) {
        return std::find_if(sent.begin(), sent.end(), matches);
    };
    const auto with = [&first](QStringView status) {
        return first([status](const gammu_sent& part) { return has_status(part, status); });
    };
    const int reference = sent.first().reference;
    gammu_verdict found{.state = gammu_state::accepted,
                        .ref = reference < 0 ? QString() : QString::number(reference)};
    if (const auto part = first(is_refusal); part != sent.end()) {
        found.state = gammu_state::refused;
        found.reason = u"%1 %2"_s.arg(part->status).arg(part->error_code);
        found.cause = cause_of_refusal(part->error_code);
    } else if (const auto failed = with(u"DeliveryFailed"); failed != sent.end()) {
        found.state = gammu_state::undelivered;
        found.reason = u"DeliveryFailed %1"_s.arg(failed->report_code);
        found.cause = cause_of_report(failed->report_code);
    } else if (with(u"DeliveryPending") != sent.end()) {
        found.state = gammu_state::buffered;
    } else if (with(u"DeliveryUnknown") != sent.end()) {
        found.reason = u"DeliveryUnknown"_s;
    } else if (std::all_of(sent.begin(), sent.end(),
                           [](const gammu_sent& one) { return has_status(one, u"DeliveryOK"); })) {
        found.state = gammu_state::delivered;
    }
    return found;
}

} // namespace

gammu_verdict judge(const gammu_trace& trace) {
    const auto& queued = trace.queued;
    // The engine notes every part first and takes the message out of its queue afterwards.
    const bool all_sent = queued && trace.sent.size() >= queued->parts &&
                          std::none_of(trace.sent.begin(), trace.sent.end(), is_refusal);
    if (all_sent || (!queued && !trace.sent.isEmpty())) {
        return judge_sent(trace.sent);
    }
    if (!queued || queued->held) {
        return {.state = queued ? gammu_state::held : gammu_state::absent,
                .reason = texts::tr("gammu-smsd began to send it and was interrupted, or lost it")};
    }
    if (queued->left) {
        return {.state = gammu_state::doubtful};
    }
    if (queued->sending) {
        return {.state = gammu_state::sending};
    }
    return queued->tried ? gammu_verdict{.state = gammu_state::retrying,
                                         .reason = texts::tr("gammu-smsd will try again")}
                         : gammu_verdict{.state = gammu_state::untouched};
}

bool is_done(gammu_state state) {
    return state >= gammu_state::accepted;
}

bool is_final(gammu_state state) {
    return state == gammu_state::refused || state >= gammu_state::delivered;
}

handover to_handover(const gammu_verdict& found) {
    const auto result = found.state == gammu_state::refused ? handover_result::refused
                        : is_done(found.state)              ? handover_result::accepted
                                                            : handover_result::unknown;
    const bool is_refused = result == handover_result::refused;
    const bool has_reason = is_refused || result == handover_result::unknown;
    return {result, found.ref, has_reason ? found.reason : QString(),
            is_refused ? found.cause : failure_cause::unspecified};
}

std::optional<report> to_report(message_id id, const gammu_verdict& found) {
    const auto told = [&](fate what) {
        return report{id, what, found.ref, found.reason, found.cause};
    };
    switch (found.state) {
    case gammu_state::accepted:
        return told(fate::accepted);
    case gammu_state::refused:
        return told(fate::refused);
    case gammu_state::buffered:
        return told(fate::buffered);
    case gammu_state::delivered:
        return told(fate::delivered);
    case gammu_state::undelivered:
        return told(fate::undelivered);
    default:
        return std::nullopt;
    }
}

} // namespace gateway
