// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/relay.h"

namespace gateway {

relay::relay(store& file, backend& network, clock& time, const settings& wanted)
    : clock_(time),
      postman_(file, time, wanted.numbers),
      dispatcher_(file, network, time, postman_, wanted.gateway.tell_failures),
      intake_(file, time, wanted.numbers, [this] { dispatcher_.wake(); }),
      cleaner_(file, time, postman_, wanted.gateway.keep_days),
      server_(intake_, postman_, time, wanted.gateway.links_per_address) {}

void relay::end(const std::function<void()>& ended) {
    // First the clients: what they still bring is kept and handed over by the next process.
    server_.end([this, ended] { dispatcher_.end(ended); });
}

} // namespace gateway
