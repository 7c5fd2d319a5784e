// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_database.h"

#include "gateway/message_text.h"
#include "platform/bound_statement.h"
#include "platform/data_error.h"
#include "platform/sqlite_database.h"
#include "platform/try_step.h"

namespace gateway {

namespace {

/// The event loop stands still meanwhile; what found the lock is tried again later.
constexpr int lock_wait_ms = 250;

} // namespace

gammu_database::gammu_database(const gammu_settings& wanted) {
    if (wanted.driver != sql_driver::sqlite) {
        throw DataError(DataError::Kind::cannot_open,
                        say("this version of the gateway knows gammu-smsd's SQLite alone"));
    }
    // The write-ahead log that this opens it with matters: gammu-smsd does not wait for a lock, and
    // with it our reading never stands in its way.
    database_ = std::make_unique<SqliteDatabase>(wanted.database, SqliteDatabase::Mode::existing,
                                                 lock_wait_ms);
}

gammu_database::~gammu_database() = default;

QList<QStringList> gammu_database::rows(const QString& sql, const QVariantList& values) {
    QList<QStringList> found;
    bound_statement statement(*database_, sql);
    statement.start(values);
    while (statement.next()) {
        QStringList columns;
        for (int i = 0; i < statement.column_count(); ++i) {
            columns.append(statement.is_null(i) ? QString() : statement.text(i));
        }
        found.append(columns);
    }
    return found;
}

bool gammu_database::run(const QString& sql, const QVariantList& values) {
    const int before = database_->total_changes();
    bound_statement(*database_, sql).run(values);
    return database_->total_changes() != before;
}

qint64 gammu_database::last_key() const {
    return database_->last_insert_rowid();
}

void gammu_database::together(const std::function<void()>& work) {
    database_->execute_script("BEGIN IMMEDIATE");
    try {
        work();
        database_->execute_script("COMMIT");
    } catch (...) {
        if (database_->in_transaction()) {
            try_step([this] { database_->execute_script("ROLLBACK"); });
        }
        throw;
    }
}

bool gammu_database::is_alive() const {
    return !database_->moved();
}

} // namespace gateway
