// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/try_store.h"

#include "gateway/console.h"
#include "gateway/texts.h"
#include "platform/data_error.h"

#include <utility>

namespace gateway {

bool try_store(const std::function<void()>& work) {
    static bool failing = false;
    try {
        work();
        failing = false;
        return true;
    } catch (const DataError& error) {
        if (!std::exchange(failing, true)) {
            complain(texts::tr("the store cannot be used: %1").arg(error.detail()));
        }
        return false;
    }
}

} // namespace gateway
