// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/data_error.h"
#include "platform/database/sole_use.h"
#include "platform/database/transaction.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/database_copy.h"
#include "tools/new_file.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb restore BACKUP FILE

Puts what the backup BACKUP holds in the place of the database FILE, and makes FILE where there is none.
Every client must be closed: the command refuses to work while another program has FILE open. Where FILE
is a link, what it leads to is replaced. Owner and permissions stay as they are.

What is replaced is kept beside it as FILE.before-restore, until the next time; to undo a restore, restore
that. The new file is checked before it takes FILE's place. Whenever the command is interrupted, FILE is
the old one or the whole new one; then run it again.

A BACKUP that is damaged, holds not all tables of this system or was made by a newer version is refused.
One of an older version is restored as it is; the next client that starts upgrades it (see smsdb upgrade).

Exit status: 0 restored; 2 not restored, and FILE is as it was.
)");
}

namespace fs = std::filesystem;

/// Where the content goes: a link's end is replaced, and not the link.
QString end_of_links(const QString& file) {
    const QString end = QFileInfo(file).canonicalFilePath();
    return end.isEmpty() ? file : end;
}

fs::path path_of(const QString& file) {
    return QFileInfo(file).filesystemFilePath();
}

/// What a killed client left in its log goes into the file, if it can be read at all.
void fold_log_of(const QString& place) {
    if (!QFileInfo::exists(place + u"-wal"_s) && !QFileInfo::exists(place + u"-journal"_s)) {
        return;
    }
    try {
        open_database(place, physical_database::open_mode::existing, 0)->rest();
    } catch (const DataError&) { // NOLINT(bugprone-empty-catch): then both are kept as they are
    }
}

/// Keeps the file at `place` under a second name, and takes the log that is left from beside it.
/// There is a file at `place` all the time: a client that found none would make an empty one.
void keep_replaced(const QString& place) {
    const QString kept = place + u".before-restore"_s;
    const QString in_the_making = kept + u".smsdb-part"_s;
    try {
        for (const QString& log : {u"-wal"_s, u"-journal"_s, u"-shm"_s}) {
            fs::remove(path_of(kept + log)); // of the one kept so far
        }
        fs::remove(path_of(in_the_making));
        // Not copied: closing the file would give the lock on it back.
        fs::create_hard_link(path_of(place), path_of(in_the_making));
        fs::rename(path_of(in_the_making), path_of(kept));
        fs::remove(path_of(in_the_making)); // still there if both were one file
        for (const QString& log : {u"-wal"_s, u"-journal"_s}) {
            if (QFileInfo::exists(place + log)) {
                fs::rename(path_of(place + log), path_of(kept + log));
            }
        }
        fs::remove(path_of(place + u"-shm"_s));
    } catch (const fs::filesystem_error& error) {
        throw failure(texts::tr("%1: cannot be kept as %2: %3")
                          .arg(place, kept, qt_error_string(error.code().value())));
    }
}

/// Puts the new file in the place of the one that is there.
void replace(new_file& made, const QString& place, const QString& told) {
    fold_log_of(place);
    const sole_use alone(place);
    made.take_ownership_of_replaced();
    conclude(told + texts::tr("what was there is now %1.before-restore\n").arg(place),
             [&made, &place] {
                 keep_replaced(place);
                 made.put_in_place();
             });
}

int run(const QCommandLineParser& arguments) {
    const QString backup = arguments.positionalArguments().at(0);
    const QString place = end_of_links(arguments.positionalArguments().at(1));
    std::error_code none_there;
    if (fs::equivalent(path_of(backup), path_of(place), none_there)) {
        throw failure(texts::tr("%1: is the database itself").arg(backup));
    }
    const bool replaces = QFileInfo::exists(place);
    new_file made(place, replaces ? existing::replace : existing::keep);
    copy_database(backup, made.path(), place);
    const QString told = texts::tr("restored %1 from %2\n").arg(place, backup);
    if (!replaces) {
        conclude(told, [&made] { made.put_in_place(); });
        return exit_status::clean;
    }
    try {
        replace(made, place, told);
    } catch (const DataError& error) {
        if (error.kind() == DataError::Kind::locked) {
            throw failure(
                texts::tr("%1: is open in a client or another program; close it first").arg(place));
        }
        throw failure(describe(error, place));
    }
    return exit_status::clean;
}

} // namespace

command restore_command() {
    return {u"restore"_s, texts::tr("put a backup in the place of a database"), help(), 2, {}, run};
}
