// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/tables.h"
#include "platform/conversion.h"
#include "platform/csv.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"
#include "tools/closing_up.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/new_file.h"
#include "tools/office_database.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb archive FILE --before DATE [--to ARCHIVE.csv]

Moves old messages from the database FILE to a new file for a spreadsheet: messages sent whose send
time, and messages received whose receipt time, lies before DATE. Messages that wait to be sent stay
whatever their time, and so does a message whose time cannot be read; those are reported.
Then the numbers of the messages that stay close up from 1 in their order, and new messages are
numbered on from there; so do those of group sends, memberships, rights and the operation log, to
which nothing points (see smsdb renumber). The file gives back the room that it does not need any
more. When no message goes, no file is made and no number changes.

  --before DATE       YYYY-MM-DD or YYYY/MM/DD; messages of that day itself stay
  --to ARCHIVE.csv    the file to make (default: FILE-before-YYYY-MM-DD.csv); it must not exist yet

Every client must be closed: the command refuses to work while another program has FILE open, and
nobody can open it until it is done. The messages are on disk in ARCHIVE.csv before one is taken out
of FILE. If the command is interrupted they are still in FILE or, if that is done, in ARCHIVE.csv;
then run it again with another --to if ARCHIVE.csv is there already.

ARCHIVE.csv is UTF-8 with a byte order mark, readable by its owner alone. A text that begins with
= + - @ (wide ones too), a tab or a line break would be taken for a formula, so an apostrophe stands
before it, and before one that begins with an apostrophe too.

Exit status: 0 done, or nothing to do; 2 not done, and the messages are in FILE.
)");
}

/// One of the two kinds of message. `query` gives the key, whether the message is done with (-1),
/// the time that decides, and then the fields of a line of the archive.
struct message_table {
    QString name;
    QString kind;
    QString query;
};

QList<message_table> message_tables() {
    return {
        {u"sendsms"_s, texts::tr("sent"),
         u"SELECT smsid, sendisok, stime, '发送', smsid, cid, cname, mobile, sms, stime, rtime, '', iif(imsend, '立即', '定时'), iif(smsfrom, '群发', '单发'), '' FROM vwsendsms ORDER BY smsid"_s},
        {u"recvedsms"_s, texts::tr("received"),
         u"SELECT smsrid, -1, rtime, '接收', smsrid, cid, cname, mobile, sms, '', '', rtime, '', '', iif(readed, '√', '') FROM vwrecvedsms ORDER BY smsrid"_s},
    };
}

QStringList headings() {
    return {u"类别"_s,     u"编号"_s,     u"客户编号"_s, u"客户名称"_s, u"手机号码"_s, u"短信"_s,
            u"发送时间"_s, u"录入时间"_s, u"接收时间"_s, u"方式"_s,     u"来源"_s,     u"已读"_s};
}

/// The messages of one table that go, and those that would if their time could be read.
struct selection {
    QStringList going;
    QByteArray lines;
    qint64 staying = 0;
    QStringList unreadable;        ///< their numbers
    QStringList unreadable_closed; ///< their numbers once those that stay have closed up
};

selection select(physical_database& database, const message_table& table, QDate before) {
    selection selected;
    for (const QStringList& row : database.texts(table.query)) {
        const bool done = row.at(1) == u"-1";
        const QDate day = read_datetime(row.at(2)).date();
        if (done && day.isValid() && day < before) {
            selected.going.append(row.at(0));
            selected.lines += csv::line(row.sliced(3));
            continue;
        }
        ++selected.staying;
        if (done && !day.isValid()) {
            selected.unreadable.append(row.at(0));
            selected.unreadable_closed.append(QString::number(selected.staying));
        }
    }
    return selected;
}

QByteArray archive_of(const QList<selection>& selections) {
    QByteArray content = csv::byte_order_mark.toByteArray() + csv::line(headings());
    for (const selection& selected : selections) {
        content += selected.lines;
    }
    return content;
}

/// Takes out the rows of these numbers.
void take_out(physical_database& database, const message_table& table, const QStringList& going) {
    const QStringView key = find_table(table.name)->key();
    for (const QString& number : going) {
        database.execute(u"DELETE FROM %1 WHERE %2 = %3"_s.arg(table.name, key, number));
    }
}

QDate read_date(const QString& text) {
    for (const QString& form : {u"yyyy-MM-dd"_s, u"yyyy/MM/dd"_s}) {
        const QDate date = QDate::fromString(text, form);
        if (date.isValid() && date.toString(form) == text) {
            return date;
        }
    }
    throw failure(
        texts::tr(
            "--before %1: expected a date, YYYY-MM-DD or YYYY/MM/DD (see smsdb archive --help)")
            .arg(text));
}

/// What is done with the messages; with nothing, where no archive is made.
QString report(const QList<message_table>& tables, const QList<selection>& selections,
               const QString& archive) {
    QString told;
    for (qsizetype i = 0; i < tables.size(); ++i) {
        const message_table& table = tables.at(i);
        const selection& selected = selections.at(i);
        if (!archive.isEmpty()) {
            told += texts::tr("moved %1 %2 message(s) to %3\n")
                        .arg(QString::number(selected.going.size()), table.kind, archive);
        }
        if (!selected.unreadable.isEmpty()) {
            told += texts::tr("kept %1 %2 message(s) whose time cannot be read, number(s) %3\n")
                        .arg(QString::number(selected.unreadable.size()), table.kind,
                             some_of(archive.isEmpty() ? selected.unreadable
                                                       : selected.unreadable_closed));
        }
    }
    return told;
}

QString required(const QCommandLineParser& arguments, const QString& option) {
    if (arguments.value(option).isEmpty()) {
        throw failure(texts::tr("--%1 names nothing (see smsdb archive --help)").arg(option));
    }
    return arguments.value(option);
}

void move_out(physical_database& database, transaction& moving, const QString& file,
              const QString& place, const QList<message_table>& tables,
              const QList<selection>& selections) {
    new_file archive(place);
    archive.write(archive_of(selections));
    for (qsizetype i = 0; i < tables.size(); ++i) {
        take_out(database, tables.at(i), selections.at(i).going);
    }
    const QString next = closing_up::close_up(database).join(u", "_s);
    database.write_ahead();
    const QString told =
        report(tables, selections, place) + texts::tr("next numbers: %1\n").arg(next);
    conclude(told, [&] {
        archive.put_in_place();
        try {
            moving.commit();
        } catch (const DataError& error) {
            throw failure(texts::tr("%1; its messages stay in it, though %2 is written")
                              .arg(describe(error, file), place));
        }
    });
    closing_up::shrink(database);
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const QDate before = read_date(required(arguments, u"before"_s));
    const QString place = arguments.isSet(u"to"_s)
                              ? required(arguments, u"to"_s)
                              : u"%1-before-%2.csv"_s.arg(file, before.toString(Qt::ISODate));
    const auto database = open_office(file, office_use::writing, 0);
    transaction moving = closing_up::keep_to_oneself(*database, file);
    const QList<message_table> tables = message_tables();
    QList<selection> selections;
    qsizetype going = 0;
    for (const message_table& table : tables) {
        selections.append(select(*database, table, before));
        going += selections.last().going.size();
    }
    if (going == 0) {
        print(report(tables, selections, {}) + texts::tr("nothing to archive\n"));
        return exit_status::clean;
    }
    move_out(*database, moving, file, place, tables, selections);
    return exit_status::clean;
}

} // namespace

command archive_command() {
    return {u"archive"_s,
            texts::tr("move old messages to a file for a spreadsheet"),
            help(),
            1,
            {QCommandLineOption(u"before"_s, {}, u"date"_s),
             QCommandLineOption(u"to"_s, {}, u"file"_s)},
            run};
}
