// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

namespace gateway {

/// Reads lines of UTF-8 from a file descriptor as they come, until its end.
class control_channel : public QObject {
    Q_OBJECT

public:
    /// Longer lines are refused, so that a stream without line ends cannot fill the memory.
    static constexpr qsizetype max_line_bytes = 65'536;

    /// Opens a FIFO such that it never ends when a writer leaves. Gives -1 and sets the reason
    /// if it cannot, or if the path is not a FIFO.
    [[nodiscard]] static int open_fifo(const QString& path, QString& reason);

    /// Reads the descriptor, which it closes in the end.
    explicit control_channel(int descriptor);
    ~control_channel() override;
    Q_DISABLE_COPY_MOVE(control_channel)

signals:
    /// A line, without its end; empty lines are passed over.
    void line_read(const QString& line);
    /// A line that cannot be taken, and why.
    void line_refused(const QString& reason);

private:
    void read_some();
    void take_lines();
    void take_line(QByteArray line);

    int descriptor_;
    QSocketNotifier notifier_;
    QByteArray unread_;
    bool skipping_ = false;
};

} // namespace gateway
