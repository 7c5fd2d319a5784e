// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/conversion.h"
#include "platform/data_error.h"
#include "platform/sqlite_database.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/csv.h"
#include "tools/new_file.h"
#include "tools/query.h"

#include <QCommandLineParser>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView help = uR"(Usage: smsdb archive FILE --before DATE [--to ARCHIVE.csv]

Moves old messages from the database FILE to a new file for a spreadsheet: messages sent whose send
time, and messages received whose receipt time, lies before DATE. Messages that wait to be sent stay
whatever their time, and so does a message whose time cannot be read; those are reported.
Then the numbers of the messages that stay close up from 1 in their order, and new messages are
numbered on from there. When no message goes, no file is made and no number changes.

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
)";

/// One of the two kinds of message. `query` gives key, whether the message is done with (-1), the
/// time that decides, and then the fields of a line of the archive.
struct message_table {
    QString name;
    QString key;
    QString kind;
    QString query;
};

QList<message_table> message_tables() {
    return {
        {u"sendsms"_s, u"smsid"_s, u"sent"_s,
         u"SELECT smsid, sendisok, stime, '发送', smsid, cid, cname, mobile, sms, stime, rtime, '', iif(imsend, '立即', '定时'), iif(smsfrom, '群发', '单发'), '' FROM vwsendsms ORDER BY smsid"_s},
        {u"recvedsms"_s, u"smsrid"_s, u"received"_s,
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

selection select(SqliteDatabase& database, const message_table& table, QDate before) {
    selection selected;
    for (const QStringList& row : query_rows(database, table.query)) {
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

void write_archive(const QString& path, const QList<selection>& selections) {
    QByteArray content = csv::byte_order_mark.toByteArray() + csv::line(headings());
    for (const selection& selected : selections) {
        content += selected.lines;
    }
    new_file archive(path);
    archive.write(content);
    archive.put_in_place();
}

/// Takes the rows out and closes up the keys of those that stay.
void take_out(SqliteDatabase& database, const message_table& table, const QStringList& going) {
    for (const QString& key : going) {
        database.execute(u"DELETE FROM %1 WHERE %2 = %3"_s.arg(table.name, table.key, key));
    }
    // Below every key first, so that no new key meets an old one.
    database.execute(
        u"UPDATE %1 SET %2 = closed.number - 1000000000000 FROM (SELECT %2 AS old, row_number() OVER (ORDER BY %2) AS number FROM %1) AS closed WHERE %2 = closed.old"_s
            .arg(table.name, table.key));
    database.execute(u"UPDATE %1 SET %2 = %2 + 1000000000000"_s.arg(table.name, table.key));
    database.execute(
        u"UPDATE sqlite_sequence SET seq = (SELECT count(*) FROM %1) WHERE name = '%1'"_s.arg(
            table.name));
}

/// Nobody else has the file open from here until the connection closes.
void keep_to_oneself(SqliteDatabase& database, const QString& file) {
    database.execute(u"PRAGMA locking_mode=EXCLUSIVE"_s);
    try {
        database.execute(u"BEGIN EXCLUSIVE"_s);
    } catch (const DataError& error) {
        if (error.kind() == DataError::Kind::locked) {
            throw failure(
                u"%1: is open in a client or another program; close it first"_s.arg(file));
        }
        throw;
    }
    // A file that cannot be written is refused before an archive is.
    database.execute(u"DELETE FROM sendsms WHERE 0"_s);
}

QDate read_date(const QString& text) {
    for (const QString& form : {u"yyyy-MM-dd"_s, u"yyyy/MM/dd"_s}) {
        const QDate date = QDate::fromString(text, form);
        if (date.isValid() && date.toString(form) == text) {
            return date;
        }
    }
    throw failure(
        u"--before %1: expected a date, YYYY-MM-DD or YYYY/MM/DD (see smsdb archive --help)"_s.arg(
            text));
}

void report(const QList<message_table>& tables, const QList<selection>& selections,
            const QString& archive) {
    QStringList next;
    for (qsizetype i = 0; i < tables.size(); ++i) {
        const message_table& table = tables.at(i);
        const selection& selected = selections.at(i);
        if (!archive.isEmpty()) {
            print(u"moved %1 %2 message(s) to %3\n"_s.arg(QString::number(selected.going.size()),
                                                          table.kind, archive));
        }
        if (!selected.unreadable.isEmpty()) {
            print(u"kept %1 %2 message(s) whose time cannot be read, number(s) %3\n"_s.arg(
                QString::number(selected.unreadable.size()), table.kind,
                some_of(archive.isEmpty() ? selected.unreadable : selected.unreadable_closed)));
        }
        next.append(u"%1 %2"_s.arg(table.name, QString::number(selected.staying + 1)));
    }
    print(archive.isEmpty() ? u"nothing to archive\n"_s
                            : u"next numbers: %1\n"_s.arg(next.join(u", "_s)));
}

QString required(const QCommandLineParser& arguments, const QString& option) {
    if (arguments.value(option).isEmpty()) {
        throw failure(u"--%1 names nothing (see smsdb archive --help)"_s.arg(option));
    }
    return arguments.value(option);
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().first();
    const QDate before = read_date(required(arguments, u"before"_s));
    const QString place = arguments.isSet(u"to"_s)
                              ? required(arguments, u"to"_s)
                              : u"%1-before-%2.csv"_s.arg(file, before.toString(Qt::ISODate));
    SqliteDatabase database(file, SqliteDatabase::Mode::existing, 0);
    keep_to_oneself(database, file);
    const QList<message_table> tables = message_tables();
    QList<selection> selections;
    qsizetype going = 0;
    for (const message_table& table : tables) {
        selections.append(select(database, table, before));
        going += selections.last().going.size();
    }
    if (going == 0) {
        report(tables, selections, {});
        return exit_status::clean;
    }
    write_archive(place, selections);
    try {
        for (qsizetype i = 0; i < tables.size(); ++i) {
            take_out(database, tables.at(i), selections.at(i).going);
        }
        database.execute(u"COMMIT"_s);
    } catch (const DataError& error) {
        throw failure(u"%1; its messages stay in it, though %2 is written"_s.arg(
            describe(error, file), place));
    }
    report(tables, selections, place);
    return exit_status::clean;
}

} // namespace

command archive_command() {
    return {u"archive"_s,
            u"move old messages to a file for a spreadsheet"_s,
            help,
            1,
            {QCommandLineOption(u"before"_s, {}, u"date"_s),
             QCommandLineOption(u"to"_s, {}, u"file"_s)},
            run};
}
