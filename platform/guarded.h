// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <concepts>
#include <exception>
#include <functional>
#include <utility>

/// The one place to which errors at the edge of an event handler go.
namespace error_edge {

using handler = std::function<void(const std::exception&)>;

/// Sets who shows the errors; until then they end the program.
void set_handler(handler shows);
void report(const std::exception& error);

} // namespace error_edge

/// Wraps a slot so that no exception passes through the toolkit's frames:
/// connect(button, &QPushButton::clicked, this, guarded([this] { save(); })).
template <class Function>
auto guarded(Function function) {
    return [function = std::move(function)]<class... Arguments>(
        Arguments && ... arguments) requires std::invocable<const Function&, Arguments...> {
        try {
            std::invoke(function, std::forward<Arguments>(arguments)...);
        } catch (const std::exception& error) {
            error_edge::report(error);
        }
    };
}
