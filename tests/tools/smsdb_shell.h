// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/connection_pool.h"
#include "tests/support/test_database.h"

#include <QProcess>

#include <optional>

/// A shell beside a database, in which the program itself is run.
class smsdb_shell {
protected:
    // Runs a line to its end; told_ is then all that it wrote. FILE and DIR stand for the database
    // and its folder. No file can grow beyond 500 KiB unless the line says so.
    int run(QString line) {
        line.replace(QStringLiteral("FILE"), database_->path())
            .replace(QStringLiteral("DIR"), database_->folder());
        const QString setting = QStringLiteral("ulimit -S -f 1000; exec 2>&1; FIXTURES=" FIXTURES
                                               "; PATH=" SMSDB_FOLDER ":$PATH; ");
        QProcess shell;
        shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), setting + line});
        shell.waitForFinished();
        told_ = shell.readAll();
        return shell.exitCode();
    }

    /// Runs statements with ";" between them on the database, and lets go of it.
    static void execute(const QString& statements) {
        for (const QString& statement : statements.split(u';')) {
            test_database::execute(statement);
        }
        connection_pool::clear();
    }

    std::optional<test_database> database_;
    QByteArray told_;
};
