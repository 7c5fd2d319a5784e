// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/tables.h"
#include "platform/database/bound_statement.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/office_database.h"
#include "tools/stored_numbers.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb tidy [--numbers] [--dry-run] FILE

Takes out of the database FILE what deleting leaves behind and no screen shows: rights of operators, and
memberships of customers or classes, that are not there. Each is told, a line each, before it goes. Also
while clients are working in FILE. Make a backup first (smsdb backup).

  --numbers   instead puts telephone numbers into the form in which they are dialled: without blanks,
              hyphens and brackets, with plain digits, without +86, 0086 or 86 before a mobile number. Only
              then a message goes out right and an answer is known as its customer's. Changed, after both
              forms are told, are the mobile numbers of customers, of messages that wait to be sent and of
              messages received. What is no number of 3 to 20 digits then is told and stays.
  --dry-run   tells what would happen, and changes nothing

Exit status: 0 done, or nothing to do; 2 nothing done.
)");
}

/// Takes out what nothing shows any more; returns what that was, a line each.
QString remove_leftovers(physical_database& database) {
    QString told;
    for (const reference& checked : all_references()) {
        if (checked.meaning != dangling::leftover) {
            continue;
        }
        const QStringView table = checked.table.name;
        const QString condition = checked.dangles();
        for (const QStringList& row : database.texts(
                 u"SELECT rowid, ifnull(%1, 'Null') FROM %2 WHERE %3 ORDER BY rowid"_s.arg(
                     checked.column.name, table, condition))) {
            told += texts::tr("%1 %2: taken out: there is no %3 %4\n")
                        .arg(table, row.at(0), checked.column.target, row.at(1));
        }
        database.execute(u"DELETE FROM %1 WHERE %2"_s.arg(table, condition));
    }
    return told;
}

/// Puts every number into the form in which it is dialled; returns what changed, a line each.
QString mend_numbers(physical_database& database) {
    QString told;
    for (const number_column& column : number_columns()) {
        bound_statement change(database, u"UPDATE %1 SET mobile = ? WHERE %2 = ?"_s.arg(
                                             column.table, find_table(column.table)->key()));
        for (const stored_number& number : untidy_numbers(database, column)) {
            const QString row = QString::number(number.row);
            if (number.dialled.isEmpty()) {
                told += texts::tr("%1 %2: %3 is no number and stays\n")
                            .arg(column.table, row, shown(number.written));
            } else {
                told += texts::tr("%1 %2: %3 becomes %4\n")
                            .arg(column.table, row, shown(number.written), number.dialled);
                change.run({number.dialled, number.row});
            }
        }
    }
    return told;
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const bool is_trial = arguments.isSet(u"dry-run"_s);
    const auto database = open_office(file, office_use::writing);
    transaction tidying(*database);
    const QString told =
        arguments.isSet(u"numbers"_s) ? mend_numbers(*database) : remove_leftovers(*database);
    database->write_ahead();
    const QString head = is_trial ? texts::tr("dry run, nothing is changed:\n") : QString();
    conclude(head + (told.isEmpty() ? texts::tr("nothing to tidy\n") : told), [&] {
        if (!is_trial) {
            tidying.commit();
        }
    });
    return exit_status::clean;
}

} // namespace

command tidy_command() {
    return {u"tidy"_s, texts::tr("take out what deleting leaves, or mend numbers"),          help(),
            1,         {QCommandLineOption(u"numbers"_s), QCommandLineOption(u"dry-run"_s)}, run};
}
