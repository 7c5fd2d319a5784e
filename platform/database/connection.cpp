// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/connection.h"

#include "platform/data_error.h"
#include "platform/database/connection_pool.h"

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

physical_database& Connection::database() const {
    if (!database_) {
        throw DataError(DataError::Kind::cursor, u"the connection is closed"_s);
    }
    return *database_;
}
