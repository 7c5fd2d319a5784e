// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"
#include "data/schema_steps.h"
#include "platform/database/transaction.h"
#include "tools/closing_up.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/office_database.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb upgrade FILE

Brings the database FILE of an older version of this system up to the version of this one, as a client does
when it starts, and tells from which version to which. FILE as it was is kept beside it as
FILE-before-step-N, where N is the first version that it lacked; an older copy of that kind goes.

Every client must be closed: the command refuses to work while another program has FILE open. If it is
interrupted, FILE is the old one or a whole newer one; then run it again. A FILE of a newer version is
refused.

The commands that only read (check, backup, export-customers, and restore its backup) work with an older
version too and say so; those that write refuse it.

Exit status: 0 upgraded, or nothing to do; 2 not upgraded.
)");
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const auto database = open_office(file, office_use::upgrading, 0);
    const int found = schema_version_of(*database);
    const int newest = newest_schema_version();
    if (found == newest) {
        print(texts::tr("%1 is of version %2 already; nothing to upgrade\n")
                  .arg(file, QString::number(newest)));
        return exit_status::clean;
    }
    closing_up::keep_to_oneself(*database, file).commit(); // it stays its own
    const QString kept = keep_before_upgrade(*database, file);
    transaction upgrading(*database, physical_database::purpose::alone);
    run_missing_steps(*database);
    database->write_ahead();
    conclude(texts::tr("upgraded %1 from version %2 to %3; as it was it is kept as %4\n")
                 .arg(file, QString::number(found), QString::number(newest), kept),
             [&upgrading] { upgrading.commit(); });
    return exit_status::clean;
}

} // namespace

command upgrade_command() {
    return {u"upgrade"_s, texts::tr("bring a database of an older version up to date"),
            help(),       1,
            {},           run};
}
