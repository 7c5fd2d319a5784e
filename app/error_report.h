// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <exception>

/// What an error means to the operator, in Chinese, with what can be done about it.
[[nodiscard]] QString describe_error(const std::exception& error);

/// Shows an error that no screen has a message of its own for.
void show_error(const std::exception& error);

/// The same when the program then ends, and says so.
void show_last_error(const std::exception& error);
