// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/gammu_rows.h"
#include "gateway/network.h"

class DataError;

namespace gateway {

/// What a daemon's signs of life, or their absence, say of the link to the network.
[[nodiscard]] network_health health_of(const std::optional<gammu_phone>& phone);

/// The same when the database cannot be used.
[[nodiscard]] network_health health_of(const QString& database, const DataError& error);

} // namespace gateway
