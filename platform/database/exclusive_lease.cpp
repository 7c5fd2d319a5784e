// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/exclusive_lease.h"

#include "platform/data_error.h"
#include "platform/database/physical_database.h"
#include "platform/file_owner.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QFileDevice::Permissions owner_may = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString lease_file(const QFileInfo& guarded) {
    return guarded.canonicalFilePath() + u"-lease"_s;
}

/// Whoever may work on the guarded file may take its lease. What is not ours to mend stays as it
/// is. By path: closing a file that this process has locked elsewhere would drop the lock.
void make_like(const QString& path, const QString& guarded) {
    if (!QFile::exists(path)) {
        static_cast<void>(QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly, owner_may));
    }
    if (!QFileInfo(path).isSymLink()) { // it could lead to any file
        give_owner_of(guarded, path);
        QFile::setPermissions(path, QFile::permissions(guarded) | owner_may);
    }
}

} // namespace

exclusive_lease::exclusive_lease(QString guarded_file) : guarded_file_(std::move(guarded_file)) {}

exclusive_lease::~exclusive_lease() = default;

bool exclusive_lease::try_take() {
    try {
        take();
    } catch (const DataError& error) {
        // That another has it is as it should be.
        if (error.kind() != DataError::Kind::locked && !std::exchange(has_complained_, true)) {
            const QString complaint = u"the lease of %1 cannot be taken: %2\n"_s;
            std::fputs(qPrintable(complaint.arg(guarded_file_, error.detail())), stderr);
        }
        return false;
    }
    has_complained_ = false;
    return true;
}

void exclusive_lease::take() {
    const QFileInfo guarded(guarded_file_);
    if (!guarded.exists()) {
        throw DataError(DataError::Kind::missing_file, u"the file is missing"_s);
    }
    if (!guarded.isWritable()) {
        throw DataError(DataError::Kind::cannot_open, u"the file cannot be written"_s);
    }
    // A lock on a file that was deleted or replaced keeps nobody out.
    if (lock_ && lock_->alive()) {
        return;
    }
    lock_.reset();
    const QString path = lease_file(guarded);
    make_like(path, guarded.canonicalFilePath());
    auto taken = open_database(path, physical_database::open_mode::create, 0);
    // Of several who try at the same moment exactly one gets this lock; an exclusive one could be
    // denied to all of them. In a file that only lets itself be read, beginning succeeds without
    // any lock and the change fails. It is never committed, so nothing is written.
    taken->execute_script("PRAGMA journal_mode=MEMORY; BEGIN IMMEDIATE; PRAGMA user_version=1");
    lock_ = std::move(taken);
}

void exclusive_lease::release() {
    lock_.reset();
}

QString exclusive_lease::unwritable_file(const QString& guarded_file) {
    const QFileInfo guarded(guarded_file);
    const QFileInfo lease(lease_file(guarded));
    const bool owner_writes =
        lease.ownerId() == guarded.ownerId() || lease.permission(QFileDevice::WriteOther) ||
        (lease.groupId() == guarded.groupId() && lease.permission(QFileDevice::WriteGroup));
    const bool is_writable = lease.isFile() && lease.isReadable() && lease.isWritable() &&
                             lease.permission(owner_may) && owner_writes;
    return !lease.exists() || is_writable ? QString() : lease.filePath();
}
