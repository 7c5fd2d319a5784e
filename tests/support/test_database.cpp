// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/support/test_database.h"

#include "data/schema.h"
#include "data/strconn.h"
#include "platform/database/connection_pool.h"
#include "platform/database/recordset.h"

#include <QSettings>

test_database::test_database() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    strconn = make_strconn(folder_.path());
    ensure_database(strconn);
}

test_database::~test_database() {
    connection_pool::clear();
}

QVariant test_database::value(const QString& statement) {
    Recordset rs;
    rs.set_ActiveConnection(strconn);
    rs.Open(statement);
    return rs.RecordCount() == 0 ? QVariant() : rs.store().value(0, 0);
}

QStringList test_database::rows(const QString& statement) {
    Recordset rs;
    rs.set_ActiveConnection(strconn);
    rs.Open(statement);
    QStringList rows;
    for (qsizetype row = 0; row < rs.RecordCount(); ++row) {
        QStringList fields;
        for (qsizetype column = 0; column < rs.store().columns().size(); ++column) {
            const bool is_null = rs.store().type(row, column) == row_store::Type::null;
            fields.append(is_null ? QStringLiteral("NULL") : rs.store().text(row, column));
        }
        rows.append(fields.join(u'|'));
    }
    return rows;
}

void test_database::execute(const QString& statement) {
    Connection connection;
    connection.ConnectionString = strconn;
    connection.Open();
    connection.Execute(statement);
}
