// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/command.h"

#include "platform/database/connection.h"

void Command::Execute() const {
    Connection connection;
    connection.ConnectionString = ActiveConnection;
    connection.Open();
    connection.Execute(CommandText);
    connection.Close();
}
