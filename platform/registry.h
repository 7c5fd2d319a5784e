// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

/// The system's registry, read only.
class Registry {
public:
    enum class RootEnum { local_machine };
    enum class TypeEnum { string = 1, dword = 4 };

    struct value {
        TypeEnum type = TypeEnum::string;
        QByteArray bytes; ///< as the registry holds them
    };

    Registry() = default;
    virtual ~Registry() = default;
    Q_DISABLE_COPY_MOVE(Registry)

    /// A value of a key; nothing when the key or the value is not there, or longer than 1024 bytes.
    [[nodiscard]] virtual std::optional<value> query(RootEnum root, const QString& key,
                                                     const QString& name) const = 0;
};

/// The registry of this system; on systems without one nothing is ever found.
[[nodiscard]] std::unique_ptr<Registry> system_registry();
