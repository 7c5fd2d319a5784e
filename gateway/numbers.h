// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/settings.h"

#include <QString>

#include <optional>

namespace gateway {

/// A number as somebody typed it, less blanks and dashes.
[[nodiscard]] QString bare_number(QStringView typed);

/// True for 3 to 20 digits, optionally after one '+'.
[[nodiscard]] bool is_number(QStringView text);

/// The number that the network is given for one that a client wrote: international, or a short
/// code as it stands. Nothing for what is no number.
[[nodiscard]] std::optional<QString> network_number(const number_settings& rules,
                                                    QStringView typed);

/// The sender's field of a frame: two characters, which the client drops, and the number as
/// customers are kept: in national form at home, in the form 00... abroad, else as it stands.
[[nodiscard]] QString sender_field(const number_settings& rules, const QString& sender);

} // namespace gateway
