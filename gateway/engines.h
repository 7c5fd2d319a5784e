// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/backend.h"
#include "gateway/clock.h"
#include "gateway/settings.h"
#include "gateway/store.h"

#include <memory>

namespace gateway {

/// The engine that the settings name; nothing for one that this program was built without. Without
/// a store it can be checked, not started.
[[nodiscard]] std::unique_ptr<backend> make_engine(const settings& wanted, clock& time,
                                                   store* file);

} // namespace gateway
