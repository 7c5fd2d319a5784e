// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "gateway/frame_joiner.h"
#include "gateway/numbers.h"
#include "gateway/wire.h"
#include "messaging/gateway_frame.h"
#include "tests/gateway/hand_clock.h"

#include <algorithm>

// Whatever a client sends in whatever pieces, the gateway loses no byte of it and reads a frame as
// the client meant it or not at all.

namespace {

using gateway::frame_joiner;

void check_submission(const QByteArray& frame) {
    const auto read = gateway::parse_submission(frame);
    if (!read) {
        return;
    }
    const QString content = read->mobile + read->text;
    const QString text = gateway::decode_text(frame);
    expect(gateway::is_number(gateway::bare_number(read->mobile)), "the mobile is a number");
    expect(text.endsWith(content), "nothing of the frame is lost or changed");
    expect(text.chopped(content.size()).toInt() == read->mobile.size(),
           "the length is the mobile's");
    if (read->mobile.size() >= 10) { // with one digit of length, two may fit as well
        const auto number = gateway::network_number({}, read->mobile);
        expect(!number || (number->size() <= 23 && gateway::sender_field({}, *number).size() <= 99),
               "the network's number and the way back from it fit");
        const auto again = gateway::parse_submission(
            gateway_frame::to_bytes(gateway_frame::outgoing(read->mobile, read->text)));
        expect(again && again->mobile == read->mobile && again->text == read->text,
               "the client's own frame reads the same");
    }
}

/// The segment of the link; small, so that inputs need not be long.
constexpr qint64 segment = 64;

/// Joins the pieces into frames, the last one ended by a pause. A refused one is empty.
QList<QByteArray> join(const QList<QByteArray>& pieces) {
    hand_clock clock;
    frame_joiner joiner(clock);
    QList<QByteArray> frames;
    QObject::connect(&joiner, &frame_joiner::frame_read,
                     [&frames](const QByteArray& frame) { frames.append(frame); });
    QObject::connect(&joiner, &frame_joiner::frame_refused,
                     [&frames] { frames.append(QByteArray()); });
    for (const QByteArray& piece : pieces) {
        if (!piece.isEmpty()) {
            joiner.add(piece, segment);
        }
    }
    clock.advance(frame_joiner::pause);
    return frames;
}

} // namespace

// The first byte is the number of cuts, each further one the length of a piece.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = view_input(data, size);
    const qsizetype cuts = input.isEmpty() ? 0 : std::min<qsizetype>(*data % 8, input.size() - 1);
    const QByteArray content = input.sliced(std::min(cuts + 1, input.size()));
    QList<QByteArray> pieces;
    qsizetype start = 0;
    for (const char length : input.mid(1, cuts)) {
        pieces.append(content.mid(start, static_cast<quint8>(length)));
        start = std::min(start + static_cast<quint8>(length), content.size());
    }
    pieces.append(content.sliced(start));

    const QList<QByteArray> frames = join(pieces);
    expect(frames.contains(QByteArray()) || frames.join() == content,
           "every byte comes out, in its order, unless a frame is too long");
    for (const QByteArray& frame : frames) {
        expect(&frame == &frames.last() || (frame.size() % 2 == 0 && frame.size() < segment),
               "only what is certain to be whole is a frame before the pause");
        check_submission(frame);
    }
    check_submission(content);
    if (pieces.size() == 2 && pieces.first().size() % 2 != 0) {
        expect(frames.size() == 1, "a frame cut inside a character is joined");
    }
    return 0;
}
