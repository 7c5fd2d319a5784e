// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_database.h"

#include "gateway/texts.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"

namespace gateway {

namespace {

/// The event loop stands still meanwhile; what found the lock is tried again later.
constexpr int lock_wait_ms = 250;

} // namespace

gammu_database::gammu_database(const gammu_settings& wanted) {
    if (wanted.driver != sql_driver::sqlite) {
        throw DataError(DataError::Kind::cannot_open,
                        texts::tr("this version of the gateway knows gammu-smsd's SQLite alone"));
    }
    // The write-ahead log that this opens it with matters: gammu-smsd does not wait for a lock, and
    // with it our reading never stands in its way.
    database_ =
        open_database(wanted.database, physical_database::open_mode::existing, lock_wait_ms);
}

gammu_database::~gammu_database() = default;

QList<QStringList> gammu_database::rows(const QString& sql, const QVariantList& values) {
    return database_->texts(sql, values);
}

bool gammu_database::run(const QString& sql, const QVariantList& values) {
    const qint64 before = database_->changed_rows();
    database_->execute(sql, values);
    return database_->changed_rows() != before;
}

qint64 gammu_database::last_key() const {
    return database_->last_key();
}

void gammu_database::together(const std::function<void()>& work) {
    transaction all(*database_);
    work();
    all.commit();
}

bool gammu_database::is_alive() const {
    return database_->alive();
}

} // namespace gateway
