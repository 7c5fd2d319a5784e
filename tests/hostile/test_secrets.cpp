// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/options.h"
#include "tests/support/test_database.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// What the system lays open to nobody else. That it tells no password, the tour checks.
class test_secrets : public QObject {
    Q_OBJECT

private slots:
    static void files_are_for_their_owner() {
        const mode_t mask = ::umask(0);
        const test_database database;
        test_database::execute(u"delete from users"_s);
        ::umask(mask);
        for (const QString& side : {QString(), u"-wal"_s, u"-shm"_s}) {
            struct stat found = {};
            QCOMPARE(::stat(qPrintable(database.path() + side), &found), 0);
            QCOMPARE(found.st_mode & 0777, 0600);
        }
    }

    static void the_gateway_keeps_to_this_machine() {
        const auto wanted = gateway::parse_options({u"smsgateway"_s});
        const auto& values = std::get<gateway::options>(wanted).values;
        QCOMPARE(values.gateway.listen.address, QHostAddress::LocalHost);
        QCOMPARE(values.http.listen.address, QHostAddress::LocalHost);
    }
};

QTEST_GUILESS_MAIN(test_secrets)
#include "test_secrets.moc"
