// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/wire.h"

#include <QFile>
#include <QString>

#include <optional>

namespace gateway {

/// The record of what passed through the gateway: one JSON object a line, appended to a file
/// with one write a line. Without a file it records nothing.
class journal {
public:
    /// Opens the file, making it if need be. Gives the reason if it cannot, else nothing.
    [[nodiscard]] QString open(const QString& path);

    /// Records a client's message and its verdict; no verdict means that none will come.
    void record(const submission& message, std::optional<verdict> result);

    /// Records a received message that was written to a client.
    void record(const received_message& message);

    /// Records a frame that made no sense and was therefore answered as failed.
    void record_unreadable(const QByteArray& frame);

    /// Records that a client was disconnected, and why.
    void record_disconnection(const QString& reason);

private:
    void write(const QString& direction, const QString& mobile, const QString& verdict_text,
               const QString& text);

    QFile file_;
    bool failing_ = false;
};

} // namespace gateway
