// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/network.h"

#include <optional>

namespace gateway {

/// A row of gammu-smsd's `inbox`, as it stands there.
struct gammu_inbox_row {
    qint64 key = 0;
    QString phone_id;
    QString sender;
    QString time; ///< local, "2026-01-02 03:04:05"
    QString coding;
    QString udh;     ///< hexadecimal
    QString hex;     ///< this part: four digits for a character, or the bytes of 8-bit data
    QString decoded; ///< the whole message in the row of its first part
};

/// The message or the part that a row brings; nothing for a later part of one that is no text.
[[nodiscard]] std::optional<incoming_part> to_incoming(const gammu_inbox_row& row);

} // namespace gateway
