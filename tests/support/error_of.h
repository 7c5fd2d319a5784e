// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/data_error.h"

#include <optional>

/// The kind of the DataError that the action throws; nothing when it throws none.
template <class Action>
[[nodiscard]] std::optional<DataError::Kind> error_of(const Action& action) {
    try {
        static_cast<void>(action());
    } catch (const DataError& error) {
        return error.kind();
    }
    return std::nullopt;
}
