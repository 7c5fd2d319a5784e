// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/engines.h"

#include "gateway/gammu_backend.h"
#include "gateway/kannel_backend.h"
#include "gateway/simulator_backend.h"

namespace gateway {

std::unique_ptr<backend> make_engine(const settings& wanted, clock& time, store* file,
                                     http_server* calls) {
    switch (wanted.gateway.engine) {
    case engine_name::simulator:
        return std::make_unique<simulator_backend>(file, time, wanted.simulator);
    case engine_name::kannel:
        return std::make_unique<kannel_backend>(wanted.kannel, wanted.http.secret, calls);
    case engine_name::gammu:
        return std::make_unique<gammu_backend>(wanted.gammu);
    }
    return nullptr;
}

} // namespace gateway
