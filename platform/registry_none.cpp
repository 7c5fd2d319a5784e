// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/registry.h"

namespace {

class no_registry : public Registry {
public:
    [[nodiscard]] std::optional<value> query(RootEnum /*root*/, const QString& /*key*/,
                                             const QString& /*name*/) const override {
        return std::nullopt;
    }
};

} // namespace

std::unique_ptr<Registry> system_registry() {
    return std::make_unique<no_registry>();
}
