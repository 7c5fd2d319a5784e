// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/record_access.h"

#include "platform/database/command.h"

void record_access::execute_statement(const QString& connection_string, const QString& statement) {
    Command{.ActiveConnection = connection_string, .CommandText = statement}.Execute();
}

void record_access::for_each_row(const QString& statement,
                                 const physical_database::row_visitor& visit) const {
    Connection reading;
    reading.ConnectionString = connection;
    reading.Open();
    reading.database().for_each_row(statement, visit);
}

void record_access::open_detached(Recordset& rs, const QString& statement) const {
    rs.set_ActiveConnection(connection);
    rs.LockType = Recordset::LockTypeEnum::read_only;
    rs.Open(statement);
    rs.detach();
}
