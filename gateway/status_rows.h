// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/status.h"
#include "gateway/store.h"
#include "platform/database/bound_statement.h"

namespace gateway {

/// What the status reads of the store, by indexes alone.
class status_rows {
public:
    /// Throws DataError.
    explicit status_rows(store& file);

    /// Fills in the figures and the lists; `midnight` begins the day of `status.now`. Throws
    /// DataError.
    void read(gateway_status& status, qint64 midnight);

private:
    bound_statement figures_;
    bound_statement messages_;
    bound_statement received_;
};

} // namespace gateway
