// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace gateway {

/// Turns what arrives from a client into frames. Frames carry no length and no end mark, so an
/// arrival is a frame, unless its size hints that the rest of it is still under way.
class frame_joiner : public QObject {
    Q_OBJECT

public:
    /// Above this many bytes an arrival may be the start of a longer frame: TCP may have cut it.
    static constexpr qsizetype max_certain_bytes = 1'024;
    /// More bytes than this without a pause are no message but a flood.
    static constexpr qsizetype max_bytes = 1'048'576;
    /// Silence after which an uncertain frame counts as complete.
    static constexpr std::chrono::milliseconds default_pause{20};

    /// A joiner that takes a silence of `pause` for the end of an uncertain frame.
    explicit frame_joiner(std::chrono::milliseconds pause = default_pause);

    /// Takes in an arrival: emits frame_read at once or after the pause, or overflowed.
    void add(const QByteArray& bytes);

    /// Ends the frame being collected, if there is one.
    void finish();

signals:
    /// A whole frame, as far as can be told.
    void frame_read(const QByteArray& frame);
    /// More than max_bytes came without a pause; they are thrown away.
    void overflowed();

private:
    QByteArray collected_;
    QTimer pause_;
};

} // namespace gateway
