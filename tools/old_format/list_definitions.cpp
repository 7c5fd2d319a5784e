// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/list_definitions.h"

#include "data/tables.h"
#include "platform/database/transaction.h"
#include "tools/console.h"
#include "tools/old_format/losses.h"
#include "tools/texts.h"

#include <QHash>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

const QStringList& tables() {
    static const QStringList both{u"viewdef"_s, u"viewitems"_s};
    return both;
}

QString columns_but_the_key(const table_description& table) {
    QStringList names;
    for (const table_column& column : table.columns) {
        if (column.kind != column_kind::key) {
            names.append(column.name.toString());
        }
    }
    return names.join(u", "_s);
}

/// Why a list, or a column of one, is not carried, by the words of the statements below.
const QHash<QString, QString>& reasons() {
    static const QHash<QString, QString> all{
        {u"password"_s, texts::tr("%1 shows passwords, which no list does")},
        {u"foreign"_s, texts::tr("%1 is no list of this system")},
        {u"empty"_s, texts::tr("%1 has no columns; the delivered definition stays")},
        {u"twice"_s, texts::tr("%1 is defined already")},
        {u"undefined"_s, texts::tr("%1: its definition is not carried")},
    };
    return all;
}

} // namespace

bool list_definitions::hold(const QString& table) {
    return tables().contains(table);
}

QString list_definitions::waiting_place(const QString& table) {
    return u"temp.old_"_s + table;
}

void list_definitions::make_waiting_places(physical_database& database) {
    for (const QString& table : tables()) {
        database.execute(u"CREATE TEMP TABLE old_%1 AS SELECT * FROM %1 WHERE 0"_s.arg(table));
    }
}

void list_definitions::put_in_place(physical_database& database, losses& lost) {
    database.execute(
        u"CREATE TEMP TABLE useless_viewitems AS SELECT rowid AS number, ViewNo AS view, 'password' AS reason FROM old_viewitems WHERE trim(keyword) = 'password' COLLATE NOCASE"_s);
    database.execute(
        u"DELETE FROM old_viewitems WHERE rowid IN (SELECT number FROM useless_viewitems)"_s);
    database.execute(
        u"CREATE TEMP TABLE useless_viewdef AS SELECT rowid AS number, ViewNo AS view, CASE WHEN NOT EXISTS (SELECT 1 FROM viewdef WHERE ViewNo = d.ViewNo) THEN 'foreign' WHEN NOT EXISTS (SELECT 1 FROM old_viewitems i WHERE i.ViewNo = d.ViewNo COLLATE NOCASE) THEN 'empty' WHEN EXISTS (SELECT 1 FROM old_viewdef e WHERE e.ViewNo = d.ViewNo COLLATE NOCASE AND e.rowid < d.rowid) THEN 'twice' END AS reason FROM old_viewdef d WHERE reason IS NOT NULL"_s);
    database.execute(
        u"DELETE FROM old_viewdef WHERE rowid IN (SELECT number FROM useless_viewdef)"_s);
    database.execute(
        u"INSERT INTO useless_viewitems SELECT rowid, ViewNo, 'undefined' FROM old_viewitems i WHERE NOT EXISTS (SELECT 1 FROM old_viewdef d WHERE d.ViewNo = i.ViewNo COLLATE NOCASE)"_s);
    database.execute(
        u"DELETE FROM old_viewitems WHERE rowid IN (SELECT number FROM useless_viewitems)"_s);
    for (const QString& table : tables()) {
        for (const QStringList& row :
             database.texts(u"SELECT number, view, reason FROM useless_%1"_s.arg(table))) {
            lost.add(table, reasons().value(row.at(2)).arg(shown(row.at(1))),
                     row.at(0).toLongLong());
        }
        const QString columns = columns_but_the_key(*find_table(table));
        database.execute(
            u"DELETE FROM %1 WHERE ViewNo IN (SELECT ViewNo FROM old_viewdef)"_s.arg(table));
        database.execute(
            u"INSERT INTO %1 (%2) SELECT %2 FROM old_%1 ORDER BY rowid"_s.arg(table, columns));
    }
}

qint64 list_definitions::carried_rows(physical_database& database, const QString& table) {
    return database.number(u"SELECT count(*) FROM old_%1"_s.arg(table));
}

} // namespace old_format
