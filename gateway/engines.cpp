// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/engines.h"

#include "gateway/simulator_backend.h"

namespace gateway {

std::unique_ptr<backend> make_engine(const settings& wanted, clock& time, store* file) {
    switch (wanted.gateway.engine) {
    case engine_name::simulator:
        return std::make_unique<simulator_backend>(file, time, wanted.simulator);
    case engine_name::kannel:
    case engine_name::gammu:
        break;
    }
    return nullptr;
}

} // namespace gateway
