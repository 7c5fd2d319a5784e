// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"
#include "gateway/intake_rows.h"
#include "gateway/settings.h"
#include "gateway/wire.h"

#include <QHash>
#include <QSet>

#include <functional>

namespace gateway {

/// The answer to an earlier frame of a link.
struct earlier_answer {
    message_id id = 0;
    bool written = false;
};

/// What became of a frame.
struct taking {
    std::optional<verdict> answer; ///< nothing: it is too late for one
    message_id id = 0;             ///< of the message, if it was taken
};

/// Takes messages in: commits them before they are answered, and knows a repeat from a message
/// that is meant twice. A frame whose answer surely arrived is done with; one whose answer may be
/// lost is awaited again and absorbed exactly once.
class intake {
public:
    /// `taken` is called after every message that was taken.
    intake(store& file, clock& time, number_settings numbers, std::function<void()> taken);

    /// A frame of this client that was read at `read_at` (steady), after another one on its link
    /// whose answer is not known to be read.
    taking take(const QString& client, const QByteArray& frame, qint64 read_at,
                std::optional<earlier_answer> before);

    /// The answer was surely read, or perhaps not: the link ended.
    void confirm(message_id id);
    void leave_open(const QString& client, message_id id);

    /// A client has so many links now.
    void count_links(const QString& client, int links);

private:
    struct presence {
        int links = 0;
        qint64 active_at = 0;
    };

    [[nodiscard]] std::optional<taken_message> read(const QString& client,
                                                    const QByteArray& frame) const;
    taking keep(const taken_message& message);
    void settle_earlier(std::optional<earlier_answer> before);
    void opened(const QString& client);
    void close_quiet();

    store& store_;
    clock& clock_;
    number_settings numbers_;
    std::function<void()> taken_;
    intake_rows rows_;
    QHash<QString, presence> clients_;
    QSet<QString> with_open_; ///< clients that may repeat something
    QSet<message_id> lost_;   ///< answers that are open, which the store could not be told
    std::unique_ptr<alarm> quiet_;
};

} // namespace gateway
