// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/exclusive_lease.h"

#include "platform/data_error.h"
#include "platform/sqlite_database.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Whoever may work on the guarded file may take its lease; a new database is its owner's alone.
void make_like(const QString& path, const QString& guarded) {
    QFile file(path);
    // Only a new file: closing a file that this process has locked elsewhere would drop the lock.
    if (!file.exists() && file.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                                    QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        file.setPermissions(QFile::permissions(guarded));
    }
}

} // namespace

exclusive_lease::exclusive_lease(QString guarded_file) : guarded_file_(std::move(guarded_file)) {}

exclusive_lease::~exclusive_lease() = default;

bool exclusive_lease::try_take() {
    // A lock on a file that was deleted or replaced keeps nobody out.
    if (lock_ && !lock_->moved()) {
        return true;
    }
    lock_.reset();
    const QString guarded = QFileInfo(guarded_file_).canonicalFilePath();
    if (guarded.isEmpty()) {
        return false;
    }
    const QString path = guarded + u"-lease"_s;
    try {
        make_like(path, guarded);
        auto taken = std::make_unique<SqliteDatabase>(path, SqliteDatabase::Mode::create, 0);
        // Of several who try at the same moment exactly one gets this lock; an exclusive one could
        // be denied to all of them. In a file that only lets itself be read, beginning succeeds
        // without any lock and the change fails. It is never committed, so nothing is written.
        taken->execute_script("PRAGMA journal_mode=MEMORY; BEGIN IMMEDIATE; PRAGMA user_version=1");
        lock_ = std::move(taken);
    } catch (const DataError&) {
        return false;
    }
    return true;
}

void exclusive_lease::release() {
    lock_.reset();
}
