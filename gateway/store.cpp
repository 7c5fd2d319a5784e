// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/store.h"

#include "gateway/message_text.h"
#include "gateway/store_tables.h"
#include "platform/bound_statement.h"
#include "platform/data_error.h"
#include "platform/exclusive_lease.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

void make_folder(const QString& folder) {
    const QDir dir(folder);
    if (dir.exists()) {
        return;
    }
    const QString parent = QFileInfo(dir.absolutePath()).path();
    constexpr auto owner_alone =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!QDir().mkpath(parent) || !QDir().mkdir(dir.absolutePath(), owner_alone)) {
        throw DataError(DataError::Kind::cannot_open, say("cannot make the folder"));
    }
}

} // namespace

QString store::path_in(const QString& folder) {
    return QDir(folder).filePath(u"relay.db"_s);
}

QString store::nudge_in(const QString& folder) {
    return QDir(folder).filePath(u"relay.nudge"_s);
}

store::store(const QString& folder, user who) {
    const QString path = path_in(folder);
    if (who == user::daemon) {
        make_folder(folder);
        database_.emplace(path, SqliteDatabase::Mode::create);
        lease_ = std::make_unique<exclusive_lease>(path);
        if (!lease_->try_take()) {
            throw DataError(DataError::Kind::locked, say("another gateway has it open"));
        }
        prepare();
    } else {
        database_.emplace(path, who == user::reader ? SqliteDatabase::Mode::read_only
                                                    : SqliteDatabase::Mode::existing);
    }
    const int found = found_version();
    if (found != version) {
        throw DataError(DataError::Kind::cannot_open,
                        found > version ? say("it is of a newer version of this program")
                                        : say("it is not complete"));
    }
}

store::~store() = default;

void store::prepare() {
    database_->execute_script("PRAGMA journal_mode=WAL");
    if (found_version() == 0) {
        transaction all(*this);
        database_->execute_script(store_tables);
        all.commit();
    }
}

int store::found_version() {
    bound_statement statement(*database_, u"PRAGMA user_version"_s);
    return statement.next() ? static_cast<int>(statement.integer(0)) : 0;
}

transaction::transaction(store& file) : database_(file.database()) {
    database_.execute_script("BEGIN IMMEDIATE");
}

transaction::~transaction() {
    if (open_ && database_.in_transaction()) {
        try {
            database_.execute_script("ROLLBACK");
        } catch (const DataError&) {
            // The store is out of order, which the statement before has told.
        }
    }
}

void transaction::commit() {
    database_.execute_script("COMMIT");
    open_ = false;
}

} // namespace gateway
