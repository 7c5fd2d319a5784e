// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/transaction.h"

#include <QString>

#include <memory>
#include <optional>

class exclusive_lease;

namespace gateway {

/// A transaction of its own, or a part of the one that is open.
class [[nodiscard]] joined_transaction {
public:
    explicit joined_transaction(physical_database& database) {
        if (!database.in_transaction()) {
            own_.emplace(database);
        }
    }
    void commit() {
        if (own_) {
            own_->commit();
        }
    }

private:
    std::optional<transaction> own_;
};

/// The relay's one file: messages, what the network told of them, what was received. Every commit
/// is on disk when it returns.
class store {
public:
    /// The daemon is the only one at a time; visitors may read or write beside it.
    enum class user { daemon, writer, reader };

    /// The version of the tables that this program knows.
    static constexpr int version = 1;

    /// Opens the store in this folder; the daemon makes both if need be, for its owner alone.
    /// Throws DataError, also when the store is of a newer version or another daemon has it.
    store(const QString& folder, user who);
    ~store();
    Q_DISABLE_COPY_MOVE(store)

    [[nodiscard]] physical_database& database() { return *database_; }

    /// The file in a folder.
    [[nodiscard]] static QString path_in(const QString& folder);
    /// A file beside it, which the daemon watches: a visitor that changed a message writes to it.
    [[nodiscard]] static QString nudge_in(const QString& folder);

private:
    void prepare();

    std::unique_ptr<physical_database> database_;
    std::unique_ptr<exclusive_lease> lease_;
};

} // namespace gateway
