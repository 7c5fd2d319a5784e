// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/connection_pool.h"

#include "platform/data_error.h"
#include "platform/database/connection_string.h"

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QTimer>

#include <vector>

namespace {

using idle_list = std::vector<std::unique_ptr<physical_database>>;

QHash<QString, std::shared_ptr<idle_list>>& idle_connections() {
    static QHash<QString, std::shared_ptr<idle_list>> connections;
    return connections;
}

/// Long enough that a run of messages or saves hardly pays for it.
constexpr int fold_delay_ms = 1000;

void fold_logs_later() {
    static QPointer<QTimer> timer;
    if (QCoreApplication::instance() == nullptr) {
        return;
    }
    if (timer.isNull()) {
        timer = new QTimer(QCoreApplication::instance());
        timer->setSingleShot(true);
        timer->setInterval(fold_delay_ms);
        QObject::connect(timer, &QTimer::timeout, &connection_pool::fold_logs);
    }
    if (!timer->isActive()) {
        timer->start();
    }
}

/// Back into the idle list; a connection that cannot be brought back to rest is closed instead.
void give_back(physical_database* database, qint64 changes_before,
               const std::weak_ptr<idle_list>& home) noexcept {
    std::unique_ptr<physical_database> owned(database);
    try {
        if (owned->in_transaction()) {
            owned->rollback();
        }
        if (owned->changed_rows() != changes_before) {
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

std::shared_ptr<physical_database> connection_pool::acquire(const QString& connection_string) {
    auto& home = idle_connections()[connection_string];
    if (!home) {
        home = std::make_shared<idle_list>();
    }
    std::unique_ptr<physical_database> database;
    while (!database && !home->empty()) {
        database = std::move(home->back());
        home->pop_back();
        if (!database->alive()) {
            database.reset();
        }
    }
    if (!database) {
        database = open_database(data_source(connection_string));
    }
    const qint64 changes = database->changed_rows();
    return {database.release(), [list = std::weak_ptr(home), changes](physical_database* released) {
                give_back(released, changes, list);
            }};
}

void connection_pool::fold_logs() {
    for (const auto& home : idle_connections()) {
        if (!home->empty()) {
            home->back()->rest();
        }
    }
}

void connection_pool::clear() {
    idle_connections().clear();
}
