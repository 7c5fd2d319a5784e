// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/connection.h"

#include "platform/connection_pool.h"
#include "platform/data_error.h"

using namespace Qt::StringLiterals;

void Connection::Open() {
    if (database_) {
        throw DataError(DataError::Kind::cursor, u"the connection is open already"_s);
    }
    database_ = connection_pool::acquire(ConnectionString);
}

void Connection::Close() {
    static_cast<void>(database());
    database_.reset();
}

Connection::StateEnum Connection::State() const {
    return database_ ? StateEnum::open : StateEnum::closed;
}

void Connection::Execute(const QString& statement) {
    database().execute(statement);
}

void Connection::BeginTrans() {
    database().execute_script("BEGIN IMMEDIATE");
}

void Connection::CommitTrans() {
    database().execute_script("COMMIT");
}

SqliteDatabase& Connection::database() const {
    if (!database_) {
        throw DataError(DataError::Kind::cursor, u"the connection is closed"_s);
    }
    return *database_;
}
