// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/command.h"
#include "tools/console.h"
#include "tools/database_copy.h"
#include "tools/new_file.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb backup FILE TO

Copies the database FILE to TO, which must not exist, also while clients are working in it: TO holds what
FILE held when the copying began. TO is one whole file, readable by its owner alone, which a client can
open in FILE's place. It is checked before it gets its name; until then it is called TO.smsdb-part, and
TO.smsdb-lock keeps a second run away. What a killed run leaves of these the next one replaces.

A FILE that is damaged, holds not all tables of this system or is of a newer version is not copied (see
smsdb check). One of an older version is copied as it is.
To go back to a backup use smsdb restore.

Exit status: 0 copied; 2 not copied.
)");
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().at(0);
    const QString place = arguments.positionalArguments().at(1);
    new_file backup(place);
    copy_database(file, backup.path(), place);
    conclude(texts::tr("copied %1 to %2\n").arg(file, place), [&backup] { backup.put_in_place(); });
    return exit_status::clean;
}

} // namespace

command backup_command() {
    return {u"backup"_s, texts::tr("copy a database, also while clients are working in it"),
            help(),      2,
            {},          run};
}
