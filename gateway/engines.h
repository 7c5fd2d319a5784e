// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/clock.h"
#include "gateway/http_server.h"
#include "gateway/settings.h"
#include "gateway/store.h"

#include <memory>

namespace gateway {

/// The engine that the settings name. `file` and `calls`, where its network calls back, outlive it;
/// without them it can be checked, not started.
[[nodiscard]] std::unique_ptr<backend> make_engine(const settings& wanted, clock& time,
                                                   store* file = nullptr,
                                                   http_server* calls = nullptr);

} // namespace gateway
