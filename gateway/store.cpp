// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/store.h"

#include "gateway/store_tables.h"
#include "gateway/texts.h"
#include "platform/data_error.h"
#include "platform/database/exclusive_lease.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// The daemon's event loop stands still meanwhile, with every client in it.
constexpr int daemon_lock_wait_ms = 500;

void make_folder(const QString& folder) {
    const QDir dir(folder);
    if (dir.exists()) {
        return;
    }
    const QString parent = QFileInfo(dir.absolutePath()).path();
    constexpr auto owner_alone =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!QDir().mkpath(parent) || !QDir().mkdir(dir.absolutePath(), owner_alone)) {
        throw DataError(DataError::Kind::cannot_open, texts::tr("cannot make the folder"));
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
        database_ = open_database(path, physical_database::open_mode::create, daemon_lock_wait_ms);
        lease_ = std::make_unique<exclusive_lease>(path);
        if (!lease_->try_take()) {
            throw DataError(DataError::Kind::locked, texts::tr("another gateway has it open"));
        }
        prepare();
    } else {
        database_ =
            open_database(path, who == user::reader ? physical_database::open_mode::read_only
                                                    : physical_database::open_mode::existing);
    }
    const int found = database_->schema_version();
    if (found != version) {
        throw DataError(DataError::Kind::cannot_open,
                        found > version ? texts::tr("it is of a newer version of this program")
                                        : texts::tr("it is not complete"));
    }
}

store::~store() = default;

void store::prepare() {
    database_->execute_script("PRAGMA journal_mode=WAL");
    if (database_->schema_version() == 0) {
        transaction all(*database_);
        database_->execute_script(store_tables);
        all.commit();
    }
}

} // namespace gateway
