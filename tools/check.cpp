// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/exclusive_lease.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb check FILE

Looks through the database FILE, also while clients are working in it, and changes nothing. Prints for
every table how many rows it holds, the highest number given out so far and how much of the numbers
1 to 32767 that is. Then come notes, which trouble nobody, and the findings, a line each.

Notes:
  - history (a message, a group send, a line of the log) names what was deleted since
  - a right or a membership names what is not there (smsdb tidy takes such rows out)
  - a table, a view, an index or a trigger is none of this system's
  - a telephone number is not written as it is dialled (smsdb tidy --numbers mends it), or is none

Findings:
  - the file is damaged
  - FILE is of an older version (smsdb upgrade brings it up to date) or of a newer one
  - a table, a view, an index, a column or the definition of a list is missing, or a table, a view or an
    index is defined otherwise than in a fresh database
  - 80 % or more of a table's numbers are given out (smsdb archive and smsdb renumber start some over)
  - a value is no 16-bit number, which no screen can read
  - a row names another that does not exist, and it is neither of the above
  - the gateway parameters are not exactly one row
  - FILE-lease, which a client locks in order to send, cannot be written
  - an operator has a Null for a name or a password, and so cannot log in
  - nobody who can log in may manage the operators (smsdb grant is the way back)
  - a text that the client writes or searches for has an apostrophe, with which it cannot be saved or found

Exit status: 0 nothing found; 1 findings; 2 the file cannot be used (missing, no database of this
system, the old format, locked).
)");
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const auto database = open_database(file, physical_database::open_mode::read_only);
    inspection found = inspect(*database);
    if (const QString lease = exclusive_lease::unwritable_file(file); !lease.isEmpty()) {
        found.findings.append(
            texts::tr("%1 cannot be written: a client that may not mend it sends nothing")
                .arg(lease));
    }

    const auto print_line = [](const QString& key, const QString& rows, const QString& highest,
                               const QString& used) {
        print(padded(key, -20) + padded(rows, 8) + padded(highest, 10) + padded(used, 8) + u'\n');
    };
    print_line(texts::tr("table.key"), texts::tr("rows"), texts::tr("highest"), texts::tr("used"));
    for (const numbering& counted : found.numberings) {
        print_line(counted.table + u'.' + counted.key, QString::number(counted.rows),
                   QString::number(counted.highest),
                   u"%1 %"_s.arg(counted.highest * 100 / last_number));
    }
    print(u'\n' + lines(found));
    if (found.findings.isEmpty()) {
        print(texts::tr("no findings\n"));
        return exit_status::clean;
    }
    return exit_status::findings;
}

} // namespace

command check_command() {
    return {u"check"_s, texts::tr("look for faults, and for numbers that run out"), help(), 1, {},
            run};
}
