// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"

#include <QByteArray>
#include <QObject>

namespace gateway {

/// Turns what arrives from a client into frames. Frames carry no length and no end mark, so an
/// arrival is a frame, unless its size says that the rest of it may still be under way.
class frame_joiner : public QObject {
    Q_OBJECT

public:
    /// No message is longer; what is gets refused as a whole.
    static constexpr qsizetype max_frame_bytes = qsizetype{2} * 4'096;
    /// More bytes than this without a pause are no message but a flood.
    static constexpr qsizetype max_bytes = 1'048'576;
    /// Silence after which an uncertain frame counts as complete: longer than a lost segment takes
    /// to come again.
    static constexpr std::chrono::milliseconds pause{500};

    explicit frame_joiner(clock& time);

    /// Takes in an arrival over a link that carries up to `segment` bytes in a piece: emits
    /// frame_read or frame_refused, at once or after the pause, or overflowed.
    void add(const QByteArray& bytes, qint64 segment);

    /// Ends the frame being collected, if there is one.
    void finish();
    /// Forgets the frame being collected; true if there was one.
    bool discard();

signals:
    /// A whole frame, as far as can be told.
    void frame_read(const QByteArray& frame);
    /// A frame that is longer than any message.
    void frame_refused();
    /// More than max_bytes came without a pause.
    void overflowed();

private:
    QByteArray collected_;
    qsizetype count_ = 0; ///< of all its bytes, also of those that are not kept
    std::unique_ptr<alarm> pause_;
};

} // namespace gateway
