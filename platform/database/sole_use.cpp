// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/sole_use.h"

#include "platform/data_error.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

void sole_use::closer::operator()(sqlite3* handle) const noexcept {
    sqlite3_close_v2(handle);
}

sole_use::sole_use(const QString& path) {
    if (!QFileInfo::exists(path)) {
        throw DataError(DataError::Kind::missing_file, path);
    }
    sqlite3* handle = nullptr;
    int result = sqlite3_open_v2(QDir::toNativeSeparators(path).toUtf8().constData(), &handle,
                                 SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    sqlite3_file* file = nullptr;
    if (result == SQLITE_OK) {
        result = sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER,
                                      static_cast<void*>(&file));
    }
    // The engine's own locks, which every open connection has a share in, without its reading the
    // file first. Closing gives them back.
    for (const int lock : {SQLITE_LOCK_SHARED, SQLITE_LOCK_EXCLUSIVE}) {
        result = result == SQLITE_OK ? file->pMethods->xLock(file, lock) : result;
    }
    if (result != SQLITE_OK) {
        const bool is_taken = (result & 0xff) == SQLITE_BUSY;
        throw DataError(is_taken ? DataError::Kind::locked : DataError::Kind::cannot_open,
                        QString::fromUtf8(sqlite3_errstr(result)));
    }
}
