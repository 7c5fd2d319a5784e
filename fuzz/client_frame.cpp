// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "gateway/wire.h"
#include "messaging/gateway_frame.h"
#include "platform/data_error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// Whatever a gateway sends, the client reads it as a message or refuses it.

namespace {

const QString time_field = u"yyMMddHHmmss"_s;
constexpr qsizetype prefix_length = 2;

/// What was read are the frame's own pieces, the time lies in this century.
void check_pieces(const QString& frame, const gateway_frame::received& read) {
    const qsizetype sender_length = frame.mid(1, 2).toInt();
    const qsizetype time_length = frame.mid(3 + sender_length, 2).toInt();
    const QString sender = frame.mid(3, sender_length);
    const QString time = frame.mid(5 + sender_length, time_length);
    expect(read.mobile == sender.mid(prefix_length), "the mobile is the sender less its prefix");
    expect(read.text == frame.mid(5 + sender_length + time_length), "the text is the rest");
    expect(read.time.date().year() / 100 == 20, "the year lies within 2000-2099");
    if (time.size() == time_field.size() &&
        std::all_of(time.begin(), time.end(), [](QChar c) { return c >= u'0' && c <= u'9'; })) {
        expect(read.time.toString(time_field) == time, "the time is the frame's");
    }
}

/// What the gateway writes, the client reads: the first two characters choose the sender's length
/// and the time, the others are the sender and the text.
void check_round_trip(const QString& content) {
    constexpr qint64 seconds_a_step = 48'000; // 65,535 of them are just below a century
    const qsizetype sender_length = content[0].unicode() % (gateway::max_sender_length + 1);
    const gateway::received_message sent{.sender = content.mid(2, sender_length),
                                         .time =
                                             QDateTime(QDate(2000, 1, 1), QTime(0, 0))
                                                 .addSecs(content[1].unicode() * seconds_a_step),
                                         .text = content.mid(2 + sender_length)};
    const auto read =
        gateway_frame::parse_received(gateway_frame::from_bytes(gateway::encode(sent)));
    expect(read.mobile == sent.sender.mid(prefix_length), "the mobile arrives");
    expect(read.time.toString(time_field) == sent.time.toString(time_field), "the time arrives");
    expect(read.text == sent.text, "the text arrives");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = view_input(data, size);
    const QString frame = gateway_frame::from_bytes(bytes);
    const bool odd = bytes.size() % 2 != 0;
    expect(gateway_frame::to_bytes(frame) == (odd ? bytes + '\0' : bytes),
           "bytes stay as they are");
    try {
        check_pieces(frame, gateway_frame::parse_received(frame));
    } catch (const DataError&) { // NOLINT(bugprone-empty-catch): refused, as it may be
    }
    if (frame.size() >= 2) {
        check_round_trip(frame);
    }
    return 0;
}
