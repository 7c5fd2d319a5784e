// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

/// Runs one of the measured processes ("login", "bare", "idle") instead of the benchmarks; returns
/// its exit status.
int run_probe(int argc, char* argv[]);
