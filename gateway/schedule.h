// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"

#include <map>

namespace gateway {

/// Things to do later, any number of them, in the order of their times.
class schedule {
public:
    explicit schedule(clock& time);

    void after(std::chrono::milliseconds pause, std::function<void()> what);

private:
    void run_due();

    clock& clock_;
    std::multimap<qint64, std::function<void()>> waiting_; ///< by the steady time
    std::unique_ptr<alarm> next_;
};

} // namespace gateway
