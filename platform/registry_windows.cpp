// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/registry.h"

#include <array>

#include <windows.h>

namespace {

constexpr DWORD longest_value = 1024; // bytes

class windows_registry : public Registry {
public:
    [[nodiscard]] std::optional<value> query(RootEnum /*root*/, const QString& key,
                                             const QString& name) const override {
        HKEY handle = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.toLocal8Bit().constData(), 0, KEY_READ,
                          &handle) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        std::array<BYTE, longest_value> buffer{};
        DWORD type = 0;
        DWORD size = longest_value;
        const LSTATUS status = RegQueryValueExA(handle, name.toLocal8Bit().constData(), nullptr,
                                                &type, buffer.data(), &size);
        RegCloseKey(handle);
        if (status != ERROR_SUCCESS) {
            return std::nullopt;
        }
        return value{
            static_cast<TypeEnum>(type),
            QByteArray(reinterpret_cast<const char*>(buffer.data()), static_cast<qsizetype>(size))};
    }
};

} // namespace

std::unique_ptr<Registry> system_registry() {
    return std::make_unique<windows_registry>();
}
