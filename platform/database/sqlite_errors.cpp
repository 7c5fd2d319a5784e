// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/sqlite_errors.h"

#include <sqlite3.h>

DataError::Kind kind_of_sqlite_result(int result_code) {
    switch (result_code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return DataError::Kind::locked;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return DataError::Kind::not_a_database;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_READONLY:
        return DataError::Kind::cannot_open;
    case SQLITE_FULL:
    case SQLITE_IOERR:
        return DataError::Kind::disk;
    default:
        return DataError::Kind::statement;
    }
}

void raise_sqlite_error(sqlite3* connection) {
    throw DataError(kind_of_sqlite_result(sqlite3_extended_errcode(connection)),
                    QString::fromUtf8(sqlite3_errmsg(connection)));
}
