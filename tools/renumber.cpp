// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

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
    return texts::tr(R"(Usage: smsdb renumber FILE

Closes up the numbers of what nothing points at in the database FILE, for when they run out: messages sent
and received, group sends, memberships, rights and the operation log are numbered from 1 in their order,
new ones on from there. Nothing is taken out. Then the file gives back the room that it does not need.
smsdb archive does the same once it has moved old messages out. The numbers of customers, classes, phrases
and operators stay: rows of other tables name them.

Every client must be closed: the command refuses to work while another program has FILE open, and nobody
can open it until it is done. Make a backup first (smsdb backup).

Exit status: 0 done; 2 not done, and every number is as it was.
)");
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const auto database = open_office(file, office_use::writing, 0);
    transaction renumbering = closing_up::keep_to_oneself(*database, file);
    const QStringList next = closing_up::close_up(*database);
    database->write_ahead();
    conclude(texts::tr("next numbers: %1\n").arg(next.join(u", "_s)),
             [&renumbering] { renumbering.commit(); });
    closing_up::shrink(*database);
    return exit_status::clean;
}

} // namespace

command renumber_command() {
    return {u"renumber"_s, texts::tr("close up numbers that run out"), help(), 1, {}, run};
}
