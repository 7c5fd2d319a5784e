// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

/// What a figure is held to: its ratio to the twin's, or its own value.
enum class bound { none, ratio_at_most, ratio_at_least, at_most };

/// One line of the table.
struct figure {
    std::string operation;
    int rows = 0;
    double ours = 0;
    double twin = -1; ///< negative: none
    std::string unit = "ms";
    bound kind = bound::none;
    double limit = 0;
};

/// Prints the head of the table.
void print_head();
/// Prints a line of the table with its verdict.
void print(const figure& shown);
/// Whether every figure printed kept its limit.
[[nodiscard]] bool all_kept();

struct medians {
    double ours = 0;
    double twin = 0;
};

using measure = std::function<double()>;

/// How long `work` takes, in milliseconds.
[[nodiscard]] double milliseconds(const std::function<void()>& work);
[[nodiscard]] double median(std::vector<double> values);
/// Runs ours and the twin in turn, so that what else the machine does falls on both, and returns
/// the medians of what they report. The first run of each does not count.
[[nodiscard]] medians in_turn(int rounds, const measure& ours, const measure& twin);

/// The row counts at which the cost must be seen to grow in a straight line.
inline constexpr std::array growth_rows{1000, 10000, 32767};
/// Prints what a row costs at the most rows (`ours`) beside what it costs at 10,000 (`twin`).
/// `costs` holds the medians in milliseconds for `growth_rows`.
void print_growth(const std::string& operation, const std::vector<double>& costs);
