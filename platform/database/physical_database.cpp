// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/physical_database.h"

#include "platform/database/sqlite_database.h"

QStringList physical_database::column(const QString& statement) {
    const row_store found = rows(statement);
    QStringList texts;
    for (qsizetype row = 0; row < found.rows(); ++row) {
        texts.append(found.text(row, 0));
    }
    return texts;
}

QList<QStringList> physical_database::texts(const QString& statement, const QVariantList& values) {
    const row_store found = rows(statement, values);
    QList<QStringList> result;
    for (qsizetype row = 0; row < found.rows(); ++row) {
        QStringList& fields = result.emplace_back();
        for (qsizetype column = 0; column < found.columns().size(); ++column) {
            fields.append(found.text(row, column));
        }
    }
    return result;
}

qint64 physical_database::number(const QString& statement) {
    const row_store found = rows(statement);
    return found.rows() == 0 ? 0 : found.value(0, 0).toLongLong();
}

std::unique_ptr<physical_database> open_database(const QString& place,
                                                 physical_database::open_mode mode, int lock_wait) {
    return std::make_unique<sqlite_database>(place, mode, lock_wait);
}
