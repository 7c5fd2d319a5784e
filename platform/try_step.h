// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>

/// Runs a step that may fail without stopping the ones behind it; its error is dropped.
template <class Step>
void try_step(const Step& step) {
    try {
        step();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
    }
}
