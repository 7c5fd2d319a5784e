// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/bound_statement.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/office_database.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb grant FILE OPERATOR

The way back in when nobody can manage the operators any more: gives the operator of that name in the
database FILE both rights and an EMPTY PASSWORD, so that anybody can log in under that name until a password
is set. Makes the operator when there is none of that name; of several the one with the lowest number is
taken. Whoever may write FILE may do this. Then log in as OPERATOR at once and set a password.

Exit status: 0 granted; 2 not granted.
)");
}

/// The number of the row that was just inserted. Throws failure when the screens cannot hold it.
qint64 given_number(physical_database& database, const QString& table) {
    if (database.last_key() > last_number) {
        throw failure(texts::tr("the numbers of %1 run out: there are no more than %2")
                          .arg(table)
                          .arg(last_number));
    }
    return database.last_key();
}

qint64 operator_named(physical_database& database, const QString& name) {
    const qint64 found =
        database.number(u"SELECT min(userid) FROM users WHERE username = '%1'"_s.arg(name));
    if (found > 0) {
        return found;
    }
    bound_statement(database, u"INSERT INTO users (username) VALUES (?)"_s).run({name});
    return given_number(database, u"users"_s);
}

void grant_everything(physical_database& database, qint64 userid) {
    database.execute(u"UPDATE users SET password = '' WHERE userid = %1"_s.arg(userid));
    for (const int right : {1, 2}) {
        if (database.number(
                u"SELECT count(*) FROM rights WHERE userid = %1 AND funid = %2"_s.arg(userid).arg(
                    right)) == 0) {
            database.execute(
                u"INSERT INTO rights (userid, funid) VALUES (%1, %2)"_s.arg(userid).arg(right));
            static_cast<void>(given_number(database, u"rights"_s));
        }
    }
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().at(0);
    const QString name = arguments.positionalArguments().at(1).trimmed();
    if (name.isEmpty() || name.contains(u'\'')) {
        throw failure(texts::tr("%1: nobody can log in under this name").arg(shown(name)));
    }
    const auto database = open_office(file, office_use::writing);
    transaction granting(*database);
    const qint64 userid = operator_named(*database, name);
    grant_everything(*database, userid);
    database->write_ahead();
    conclude(
        texts::tr(
            "operator %1 (number %2) has both rights\nWARNING: THE PASSWORD IS EMPTY NOW. Anybody can log in as %1; do it at once and set a password.\n")
            .arg(shown(name), QString::number(userid)),
        [&granting] { granting.commit(); });
    return exit_status::clean;
}

} // namespace

command grant_command() {
    return {u"grant"_s, texts::tr("give an operator all rights, when nobody has them"),
            help(),     2,
            {},         run};
}
