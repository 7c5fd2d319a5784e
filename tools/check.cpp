// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/exclusive_lease.h"
#include "platform/sqlite_database.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView help = uR"(Usage: smsdb check FILE

Looks through the database FILE, also while clients are working in it, and changes nothing. Prints for
every table how many rows it holds, the highest number given out so far and how much of the numbers
1 to 32767 that is. Then come the findings, a line each:

  - the file is damaged
  - a table, a view, a column or the definition of a list is missing
  - 80 % or more of a table's numbers are given out (smsdb archive starts those of messages over)
  - a value is no 16-bit number, which no screen can read
  - a row names another that does not exist; 0 stands for none in messages and group sends
  - the gateway parameters are not exactly one row
  - FILE-lease, which a client locks in order to send, cannot be written

Exit status: 0 nothing found; 1 findings; 2 the file cannot be used (missing, no database of this
system, the old format, locked).
)";

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    SqliteDatabase database(file, SqliteDatabase::Mode::read_only);
    inspection found = inspect(database);
    if (const QString lease = exclusive_lease::unwritable_file(file); !lease.isEmpty()) {
        found.findings.append(
            u"%1 cannot be written: a client that may not mend it sends nothing"_s.arg(lease));
    }

    const QString line = u"%1%2%3%4\n"_s;
    print(line.arg(u"table.key"_s, -20).arg(u"rows"_s, 8).arg(u"highest"_s, 10).arg(u"used"_s, 8));
    for (const numbering& counted : found.numberings) {
        print(line.arg(counted.table + u'.' + counted.key, -20)
                  .arg(counted.rows, 8)
                  .arg(counted.highest, 10)
                  .arg(u"%1 %"_s.arg(counted.highest * 100 / last_number), 8));
    }
    print(u"\n"_s);
    for (const QString& finding : found.findings) {
        print(u"finding: %1\n"_s.arg(finding));
    }
    if (found.findings.isEmpty()) {
        print(u"no findings\n"_s);
        return exit_status::clean;
    }
    return exit_status::findings;
}

} // namespace

command check_command() {
    return {u"check"_s, u"look for faults, and for numbers that run out"_s, help, 1, {}, run};
}
