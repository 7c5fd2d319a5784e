// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/commands.h"

#include "data/schema.h"
#include "data/tables.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/new_file.h"
#include "tools/old_format/list_definitions.h"
#include "tools/old_format/losses.h"
#include "tools/old_format/records.h"
#include "tools/old_format/table_filler.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QMap>

#include <optional>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb import [--charset NAME] OLD.mdb NEW

Makes the database NEW from OLD.mdb, a database of the old format (Jet 3 or Jet 4, as Access 97 to 2003
write them). OLD.mdb is only read. NEW must not exist; it appears when everything is in it.

  --charset NAME   what the texts of a Jet 3 file are written in (default: GBK, which is code page 936)

Tables and columns are matched by name without regard to case. A table that is missing or empty in
OLD.mdb gets what a fresh database holds: the functions, the gateway parameters, the first operator
with an empty password. Numbers of rows stay, and new rows are numbered on from the highest. Moments
become yyyy/mm/dd hh:mm:ss, Yes/No becomes -1/0 (1/0 for messages read). The definition of a list takes
the place of the delivered one when it is one of this system's lists and has a column.

What cannot be carried is reported, a line each with the numbers of the rows (rows without a number
are counted as they stand in the file):
  - a row whose number is above 32767, missing, or given twice is left out
  - a group's member or a right whose numbers do not fit is left out
  - any other number that does not fit is carried as 0, a date that cannot be read as empty
  - a message without a readable mark of having been sent counts as sent
  - a column of a list that shows passwords is left out
  - tables and columns that only one of the two systems has are named
Then comes what smsdb check finds in NEW; a text with an apostrophe is carried as it is, for one.

A file in which rows or tables are damaged is refused as a whole: let Access compact and repair it, or use
an older copy. Where a single text is damaged, the row is carried without it, and that is reported: an
older copy may still have it. What was changed within a text cannot be noticed.

Exit status: 0 all carried, and no findings; 1 made, with losses or findings; 2 not made.
)");
}

/// The import of one old database into a fresh one.
class importer {
public:
    explicit importer(physical_database& database) : database_(database) {}

    void run(records& old);
    [[nodiscard]] const losses& lost() const { return lost_; }
    [[nodiscard]] QString report() const;

private:
    struct counts {
        qint64 read = 0;
        qint64 written = 0;
    };

    void begin_table(const records::record& table);
    void take_row(const QJsonArray& row);
    void finish_table();
    void report_missing();

    physical_database& database_;
    losses lost_;
    QMap<QString, counts> counts_; ///< of the tables that the old database has, by our names
    QString table_;                ///< the one that rows come for, by our name or, unknown, its own
    qint64 unknown_rows_ = 0;
    std::optional<table_filler> filler_; ///< none for an unknown table
};

void importer::begin_table(const records::record& table) {
    table_ = table.table;
    unknown_rows_ = 0;
    const table_description* known = find_table(table.table);
    if (known == nullptr) {
        return;
    }
    table_ = known->name.toString();
    if (counts_.contains(table_)) {
        throw failure(texts::tr("the old database is damaged: it has two tables %1").arg(table_));
    }
    counts_.insert(table_, {});
    const QString target =
        list_definitions::hold(table_) ? list_definitions::waiting_place(table_) : table_;
    filler_.emplace(database_, lost_, *known, target, table.columns);
}

void importer::take_row(const QJsonArray& row) {
    if (!filler_) {
        ++unknown_rows_;
        return;
    }
    if (filler_->rows_read() == 0 && !list_definitions::hold(table_)) {
        // Those of the fresh office, and their numbering with them.
        database_.execute(u"DELETE FROM "_s + table_);
        database_.execute(u"DELETE FROM sqlite_sequence WHERE name = '%1'"_s.arg(table_));
    }
    filler_->take(row);
}

void importer::finish_table() {
    if (filler_) {
        counts_[table_] = {filler_->rows_read(), filler_->rows_written()};
        filler_.reset();
    } else if (!table_.isEmpty()) {
        lost_.add(texts::tr("table %1").arg(table_),
                  texts::tr("this system has no such table (%1 row(s))").arg(unknown_rows_));
    }
}

/// A table that an office filled is not missed in silence; what the program fills itself is that of
/// a fresh database.
void importer::report_missing() {
    for (const table_description& table : all_tables()) {
        if (!table.is_programs_own && !counts_.contains(table.name.toString())) {
            lost_.add(texts::tr("table %1").arg(table.name),
                      texts::tr("the old database has none"));
        }
    }
}

void importer::run(records& old) {
    transaction all(database_);
    list_definitions::make_waiting_places(database_);
    for (;;) {
        const records::record found = old.next();
        if (found.kind == records::record::Kind::row) {
            take_row(found.values);
            continue;
        }
        finish_table();
        if (found.kind == records::record::Kind::end) {
            break;
        }
        begin_table(found);
    }
    report_missing();
    list_definitions::put_in_place(database_, lost_);
    all.commit();
}

QString importer::report() const {
    const auto line = [](const QString& table, const QString& read, const QString& written) {
        return padded(table, -12) + padded(read, 8) + padded(written, 10) + u'\n';
    };
    QString text = line(texts::tr("table"), texts::tr("read"), texts::tr("written"));
    for (const table_description& description : all_tables()) {
        const QString table = description.name.toString();
        const counts counted = counts_.value(table);
        const qint64 written = list_definitions::hold(table)
                                   ? list_definitions::carried_rows(database_, table)
                                   : counted.written;
        text +=
            line(table, counts_.contains(table) ? QString::number(counted.read) : texts::tr("none"),
                 counted.read == 0 ? texts::tr("fresh") : QString::number(written));
    }
    text += u'\n' + lost_.lines();
    const qint64 waiting = database_.number(
        u"SELECT count(*) FROM sendsms WHERE sendisok = 0 AND stime IS NOT NULL"_s);
    if (waiting > 0) {
        text +=
            texts::tr(
                "%1 message(s) wait to be sent; the next client that starts with the gateway sends those that are due\n")
                .arg(waiting);
    }
    return text;
}

int run(const QCommandLineParser& arguments) {
    const QString old = arguments.positionalArguments().at(0);
    const QString place = arguments.positionalArguments().at(1);
    const QString charset = arguments.value(u"charset"_s);
    refuse_charset(charset);
    new_file made(place);
    QString report;
    bool is_whole = false;
    try {
        make_database(made.path());
        const auto database = open_database(made.path());
        records source(old, charset);
        importer importing(*database);
        importing.run(source);
        const inspection found = inspect(*database);
        report = importing.report() + lines(found);
        is_whole = importing.lost().isEmpty() && found.findings.isEmpty();
        // Then it needs no log beside it until a client opens it.
        database->execute(u"PRAGMA journal_mode=DELETE"_s);
    } catch (const DataError& error) {
        throw failure(describe(error, place));
    }
    conclude(report + texts::tr("imported %1 to %2\n").arg(old, place),
             [&made] { made.put_in_place(); });
    return is_whole ? exit_status::clean : exit_status::findings;
}

} // namespace

command import_command() {
    return {u"import"_s, texts::tr("make a database from one of the old format"),     help(),
            2,           {QCommandLineOption(u"charset"_s, {}, u"name"_s, u"GBK"_s)}, run};
}

} // namespace old_format
