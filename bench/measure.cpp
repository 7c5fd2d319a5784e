// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

bool any_missed = false;

std::string number(double value, const std::string& unit) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), value < 100 ? "%.2f %s" : "%.0f %s", value,
                  unit.c_str());
    return text.data();
}

std::string limit_text(const figure& shown) {
    switch (shown.kind) {
    case bound::ratio_at_most:
        return "≤ " + number(shown.limit, "×");
    case bound::ratio_at_least:
        return "≥ " + number(shown.limit, "×");
    case bound::at_most:
        return "≤ " + number(shown.limit, shown.unit);
    case bound::none:
        break;
    }
    return "–";
}

std::string verdict(const figure& shown) {
    const double ratio = shown.ours / shown.twin;
    const bool kept = shown.kind == bound::ratio_at_most    ? ratio <= shown.limit
                      : shown.kind == bound::ratio_at_least ? ratio >= shown.limit
                                                            : shown.ours <= shown.limit;
    if (shown.kind == bound::none) {
        return "–";
    }
    any_missed = any_missed || !kept;
    return kept ? "ok" : "MISSED";
}

} // namespace

void print_head() {
    std::puts("| operation | rows | ours | twin | ratio | limit | |\n"
              "|---|---:|---:|---:|---:|---:|---|");
}

void print(const figure& shown) {
    const bool compared = shown.twin >= 0;
    std::printf("| %s | %s | %s | %s | %s | %s | %s |\n", shown.operation.c_str(),
                shown.rows > 0 ? std::to_string(shown.rows).c_str() : "–",
                number(shown.ours, shown.unit).c_str(),
                compared ? number(shown.twin, shown.unit).c_str() : "–",
                compared && shown.twin > 0 ? number(shown.ours / shown.twin, "×").c_str() : "–",
                limit_text(shown).c_str(), verdict(shown).c_str());
    std::fflush(stdout);
}

bool all_kept() {
    return !any_missed;
}

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

medians in_turn(int rounds, const measure& ours, const measure& twin) {
    ours();
    twin();
    std::vector<double> of_ours;
    std::vector<double> of_twin;
    for (int round = 0; round < rounds; ++round) {
        of_ours.push_back(ours());
        of_twin.push_back(twin());
    }
    return {.ours = median(of_ours), .twin = median(of_twin)};
}

void print_growth(const std::string& operation, const std::vector<double>& costs) {
    constexpr double to_microseconds = 1000;
    print({.operation = operation + ": a row's share, against 10,000 rows",
           .rows = growth_rows[2],
           .ours = costs.at(2) * to_microseconds / growth_rows[2],
           .twin = costs.at(1) * to_microseconds / growth_rows[1],
           .unit = "µs",
           .kind = bound::ratio_at_most,
           .limit = 1.25});
}
