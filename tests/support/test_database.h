// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

/// A freshly made database in a folder of its own, named by `strconn` while it lives; the settings
/// store lies beside it.
class test_database {
public:
    test_database();
    ~test_database();
    Q_DISABLE_COPY_MOVE(test_database)

    [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("sms.old.mdb")); }
    [[nodiscard]] QString folder() const { return folder_.path(); }

    /// The first field of the first row; invalid when there is no row.
    [[nodiscard]] static QVariant value(const QString& statement);
    /// Every row, its fields joined by "|", Null as "NULL".
    [[nodiscard]] static QStringList rows(const QString& statement);
    static void execute(const QString& statement);

private:
    QTemporaryDir folder_;
};
