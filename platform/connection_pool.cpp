// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/connection_pool.h"

#include "platform/connection_string.h"
#include "platform/data_error.h"

#include <QCoreApplication>
#include <QHash>
#include <QTimer>

#include <vector>

namespace {

using idle_list = std::vector<std::unique_ptr<SqliteDatabase>>;

QHash<QString, std::shared_ptr<idle_list>>& idle_connections() {
    static QHash<QString, std::shared_ptr<idle_list>> connections;
    return connections;
}

/// Long enough that a run of messages or saves hardly pays for it.
constexpr int fold_delay_ms = 1000;

void fold_logs_later() {
    static bool scheduled = false;
    if (scheduled || QCoreApplication::instance() == nullptr) {
        return;
    }
    scheduled = true;
    QTimer::singleShot(fold_delay_ms, QCoreApplication::instance(), [] {
        scheduled = false;
        connection_pool::fold_logs();
    });
}

/// Back into the idle list; a connection that cannot be brought back to rest is closed instead.
void give_back(SqliteDatabase* database, int changes_before,
               const std::weak_ptr<idle_list>& home) noexcept {
    std::unique_ptr<SqliteDatabase> owned(database);
    try {
        if (owned->in_transaction()) {
            owned->execute_script("ROLLBACK");
        }
        if (owned->total_changes() != changes_before) {
            fold_logs_later();
        }
        if (const auto list = home.lock()) {
            list->push_back(std::move(owned));
        }
    } catch (const std::exception&) {
        owned.reset();
    }
}

} // namespace

std::shared_ptr<SqliteDatabase> connection_pool::acquire(const QString& connection_string) {
    auto& home = idle_connections()[connection_string];
    if (!home) {
        home = std::make_shared<idle_list>();
    }
    std::unique_ptr<SqliteDatabase> database;
    while (!database && !home->empty()) {
        database = std::move(home->back());
        home->pop_back();
        if (database->moved()) {
            database.reset();
        }
    }
    if (!database) {
        database = std::make_unique<SqliteDatabase>(data_source(connection_string));
    }
    const int changes = database->total_changes();
    return {database.release(), [list = std::weak_ptr(home), changes](SqliteDatabase* released) {
                give_back(released, changes, list);
            }};
}

void connection_pool::fold_logs() {
    for (const auto& home : idle_connections()) {
        if (!home->empty()) {
            home->back()->fold_log();
        }
    }
}

void connection_pool::clear() {
    idle_connections().clear();
}
