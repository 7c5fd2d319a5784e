// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/relay_rules.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

constexpr std::array states{
    std::pair{message_state::queued, QStringView(u"queued")},
    std::pair{message_state::handing, QStringView(u"handing")},
    std::pair{message_state::unknown, QStringView(u"unknown")},
    std::pair{message_state::accepted, QStringView(u"accepted")},
    std::pair{message_state::delivered, QStringView(u"delivered")},
    std::pair{message_state::failed, QStringView(u"failed")},
    std::pair{message_state::dropped, QStringView(u"dropped")},
};

constexpr QStringView notice_mark = u"【未送达】";
/// Characters of the text that a notice repeats.
constexpr qsizetype notice_quote = 30;

QString cause_text(fate told, failure_cause cause) {
    switch (cause) {
    case failure_cause::bad_number:
        return u"号码无效"_s;
    case failure_cause::blocked:
        return u"对方拒收或号码被屏蔽"_s;
    case failure_cause::content:
        return u"内容未被网络接受"_s;
    case failure_cause::credit:
        return u"短信余额不足"_s;
    case failure_cause::absent:
        return u"对方关机或不在服务区"_s;
    case failure_cause::expired:
        return u"超过有效期仍未送到"_s;
    case failure_cause::unspecified:
        break;
    }
    return told == fate::refused ? u"网络拒绝发送"_s : u"网络未能送到"_s;
}

} // namespace

QString name_of(message_state state) {
    const auto* found = std::find_if(states.begin(), states.end(),
                                     [state](const auto& one) { return one.first == state; });
    return found->second.toString();
}

std::optional<message_state> state_named(const QString& name) {
    const auto* found = std::find_if(states.begin(), states.end(),
                                     [&name](const auto& one) { return one.second == name; });
    return found == states.end() ? std::nullopt : std::optional(found->first);
}

QStringList state_names() {
    QStringList names;
    for (const auto& [state, name] : states) {
        names.append(name.toString());
    }
    return names;
}

QString name_of(fate what) {
    switch (what) {
    case fate::accepted:
        return u"accepted"_s;
    case fate::buffered:
        return u"buffered"_s;
    case fate::delivered:
        return u"delivered"_s;
    case fate::undelivered:
        return u"undelivered"_s;
    case fate::refused:
        break;
    }
    return u"refused"_s;
}

message_state state_after(message_state before, handover_result result) {
    // A report that came first knows more; and what a person gave up goes out no more.
    const bool waits = before == message_state::handing || before == message_state::unknown;
    // One that is to go again, or shall not, but has gone already.
    const bool can_be_accepted =
        waits || before == message_state::dropped || before == message_state::queued;
    switch (result) {
    case handover_result::accepted:
        return can_be_accepted ? message_state::accepted : before;
    case handover_result::refused:
        return waits ? message_state::failed : before;
    case handover_result::not_now:
        return waits ? message_state::queued : before;
    case handover_result::unknown:
        break;
    }
    return waits ? message_state::unknown : before;
}

message_state state_after(message_state before, fate told) {
    const bool is_final = before == message_state::delivered || before == message_state::failed;
    switch (told) {
    case fate::delivered:
        return message_state::delivered;
    case fate::undelivered:
    case fate::refused:
        return before == message_state::delivered ? before : message_state::failed;
    case fate::accepted:
    case fate::buffered:
        break;
    }
    // Even one that still waits to go again: the network has it after all.
    return is_final ? before : message_state::accepted;
}

bool is_settled(message_state state) {
    return state == message_state::accepted || state == message_state::delivered ||
           state == message_state::failed || state == message_state::dropped;
}

bool can_be_resent(message_state state) {
    return can_be_dropped(state) || state == message_state::failed ||
           state == message_state::dropped;
}

bool can_be_dropped(message_state state) {
    return state == message_state::queued || state == message_state::unknown;
}

std::chrono::milliseconds pause_after(int attempts) {
    constexpr std::chrono::milliseconds longest = 5min;
    const int doublings = std::clamp(attempts - 1, 0, 9); // the tenth would pass the longest
    return std::min(longest, std::chrono::milliseconds(1s) * (1 << doublings));
}

std::optional<std::chrono::milliseconds> ask_again_after(std::chrono::milliseconds unknown_for) {
    if (unknown_for >= 10min) {
        return std::nullopt;
    }
    return std::clamp<std::chrono::milliseconds>(unknown_for, 1s, 1min);
}

bool is_told(told_failures wanted, const QString& text, fate told) {
    const bool is_failure = told == fate::refused || told == fate::undelivered;
    return is_failure && !text.startsWith(notice_mark) &&
           (wanted == told_failures::all ||
            (wanted == told_failures::refused && told == fate::refused));
}

QString failure_reason(const QString& words, fate told, failure_cause cause) {
    return words.isEmpty() ? cause_text(told, cause)
                           : u"%1（%2）"_s.arg(cause_text(told, cause), words);
}

QString failure_notice(const QString& text, fate told, failure_cause cause) {
    qsizetype length = std::min(notice_quote, text.size());
    if (length < text.size() && text.at(length - 1).isHighSurrogate()) {
        --length;
    }
    const QString beginning = text.left(length) + (length < text.size() ? u"…"_s : QString());
    return u"%1%2：%3"_s.arg(notice_mark, cause_text(told, cause), beginning);
}

QString text_for_client(QString text) {
    return text.replace(u'\'', u'’').remove(QChar(u'\0'));
}

} // namespace gateway
