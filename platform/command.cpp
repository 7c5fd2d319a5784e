// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/command.h"

#include "platform/connection.h"

void Command::Execute() const {
    Connection connection;
    connection.ConnectionString = ActiveConnection;
    connection.Open();
    connection.Execute(CommandText);
    connection.Close();
}
