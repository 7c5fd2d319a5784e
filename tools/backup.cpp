// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/data_error.h"
#include "platform/sqlite_database.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/new_file.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView help = uR"(Usage: smsdb backup [--force] FILE TO

Copies the database FILE to TO, also while clients are working in it: TO holds what FILE held when the
copying began. TO is one whole file, readable by its owner alone, which a client can open in FILE's
place. It is checked before it gets its name; until then it is called TO.part, and TO.lock keeps a
second run away. What a killed run leaves of these the next one replaces.

  --force   replace TO when it exists, but never a database that is in use

To go back to a backup: close every client, then smsdb backup --force TO FILE. If FILE-wal is still
there, a client was killed: take FILE-wal and FILE-shm away first, they belong to the old content.

Exit status: 0 copied; 2 not copied, and TO is as it was.
)";

void refuse_database(const QString& file, const QString& place) {
    std::error_code none_there;
    if (std::filesystem::equivalent(QFileInfo(file).filesystemFilePath(),
                                    QFileInfo(place).filesystemFilePath(), none_there)) {
        throw failure(u"%1: is the database itself"_s.arg(place));
    }
    // A log beside another database than its own would be taken for the other's.
    for (const QString& log : {place + u"-wal"_s, place + u"-journal"_s}) {
        if (QFileInfo::exists(log)) {
            throw failure(u"%1: is in use or was not closed well: there is %2"_s.arg(place, log));
        }
    }
}

void fill(SqliteDatabase& source, const QString& path) {
    SqliteDatabase copy(path, SqliteDatabase::Mode::create);
    source.copy_to(copy);
    // Then it needs no log beside it, also on a medium that cannot be written.
    copy.execute(u"PRAGMA journal_mode=DELETE"_s);
}

void check(const QString& path) {
    SqliteDatabase copy(path, SqliteDatabase::Mode::read_only);
    const QStringList faults = integrity_faults(copy);
    if (!faults.isEmpty()) {
        throw failure(u"the copy is damaged, so the database is: %1"_s.arg(faults.first()));
    }
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().at(0);
    const QString place = arguments.positionalArguments().at(1);
    SqliteDatabase source(file, SqliteDatabase::Mode::read_only);
    refuse_database(file, place);
    new_file backup(place, arguments.isSet(u"force"_s) ? existing::replace : existing::keep);
    try {
        fill(source, backup.path());
        check(backup.path());
    } catch (const DataError& error) {
        // Nobody else touches the copy: what is locked or damaged is the database.
        const bool of_the_copy =
            error.kind() == DataError::Kind::disk || error.kind() == DataError::Kind::cannot_open;
        throw failure(describe(error, of_the_copy ? place : file));
    }
    backup.put_in_place();
    print(u"copied %1 to %2\n"_s.arg(file, place));
    return exit_status::clean;
}

} // namespace

command backup_command() {
    return {u"backup"_s,
            u"copy a database, also while clients are working in it"_s,
            help,
            2,
            {QCommandLineOption(u"force"_s)},
            run};
}
