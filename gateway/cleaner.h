// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"
#include "gateway/postman.h"
#include "gateway/store.h"

namespace gateway {

/// Takes what is settled and old out of the store, a few rows at a time so that nothing waits for
/// it, and gives up on messages of which a part never came.
class cleaner {
public:
    /// Keeps what was settled within so many days. Begins soon after and looks every hour.
    cleaner(store& file, clock& time, postman& received, int keep_days);

    /// One step; true when there may be more to do.
    bool step();

private:
    store& store_;
    clock& clock_;
    postman& postman_;
    qint64 keep_ms_;
    bound_statement old_messages_;
    bound_statement old_events_;
    bound_statement old_received_;
    bound_statement old_parts_;
    std::unique_ptr<alarm> next_;
};

} // namespace gateway
