// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/inspection.h"

#include "data/schema.h"
#include "data/tables.h"
#include "platform/data_error.h"
#include "platform/database/transaction.h"
#include "tools/console.h"
#include "tools/row_faults.h"
#include "tools/schema_differences.h"
#include "tools/stored_numbers.h"
#include "tools/texts.h"

using namespace Qt::StringLiterals;

namespace {

/// The numbering is nearly used up from here on, in per cent of all numbers.
constexpr qint64 nearly_full = 80;

class inspector {
public:
    explicit inspector(physical_database& database) : database_(database) {
        fill_database(*fresh_);
    }

    inspection inspect();

private:
    template <class Step>
    void attempt(const Step& step);
    void report(const QString& finding) { found_.findings.append(finding); }
    /// Puts `what` down with the numbers of the rows that meet the condition, if there are any.
    void report_rows(const QString& what, QStringView table, const QString& condition,
                     QStringList& among);
    void report_rows(const QString& what, QStringView table, const QString& condition) {
        report_rows(what, table, condition, found_.findings);
    }

    void look_at_schema();
    void look_at_key(QStringView table, QStringView key);
    void look_at_numbers(const table_description& table);
    void look_at_reference(const reference& checked);
    void look_at_telephone_numbers(const number_column& column);
    void look_at_operators();
    void look_at_parameters();
    void look_at_view_definitions();

    physical_database& database_;
    /// How everything should be.
    std::unique_ptr<physical_database> fresh_ =
        open_database({}, physical_database::open_mode::memory);
    inspection found_;
    bool sound_ = true;    ///< the engine finds nothing broken
    bool complete_ = true; ///< nothing of the schema is missing
};

/// What cannot be read because of a fault that is already reported is passed over.
template <class Step>
void inspector::attempt(const Step& step) {
    try {
        step();
    } catch (const DataError& error) {
        const bool explained = (error.kind() == DataError::Kind::not_a_database && !sound_) ||
                               (error.kind() == DataError::Kind::statement && !complete_);
        if (!explained) {
            throw;
        }
    }
}

void put_down(const QString& what, const QStringList& rows, QStringList& among) {
    if (!rows.isEmpty()) {
        among.append(
            texts::tr("%1 in %2 row(s): %3").arg(what).arg(rows.size()).arg(some_of(rows)));
    }
}

void inspector::report_rows(const QString& what, QStringView table, const QString& condition,
                            QStringList& among) {
    put_down(
        what,
        database_.column(u"SELECT rowid FROM %1 WHERE %2 ORDER BY rowid"_s.arg(table, condition)),
        among);
}

void inspector::look_at_schema() {
    const schema_differences differences = compare_schemas(database_, *fresh_);
    found_.findings += differences.findings;
    found_.notes += differences.notes;
    complete_ = differences.is_complete;
}

void inspector::look_at_key(QStringView table, QStringView key) {
    const QStringList row =
        database_
            .texts(
                u"SELECT count(*), max(ifnull(max(%2), 0), ifnull((SELECT max(seq) FROM sqlite_sequence WHERE name = '%1' COLLATE NOCASE), 0)) FROM %1"_s
                    .arg(table, key))
            .first();
    const numbering counted{table.toString(), key.toString(), row.at(0).toLongLong(),
                            row.at(1).toLongLong()};
    found_.numberings.append(counted);
    if (counted.highest * 100 >= last_number * nearly_full) {
        report(texts::tr("%1.%2: number %3 of %4 has been given out")
                   .arg(table, key)
                   .arg(counted.highest)
                   .arg(last_number));
    }
}

void inspector::look_at_numbers(const table_description& table) {
    for (const table_column& column : table.columns) {
        if (column.is_number()) {
            report_rows(
                texts::tr("%1.%2 holds no 16-bit number").arg(table.name, column.name), table.name,
                u"%1 IS NOT NULL AND (typeof(%1) <> 'integer' OR %1 NOT BETWEEN -32768 AND 32767)"_s
                    .arg(column.name));
        }
    }
}

void inspector::look_at_reference(const reference& checked) {
    const QString told = checked.meaning == dangling::leftover
                             ? texts::tr("%1.%2 points nowhere (%3; see smsdb tidy)")
                             : texts::tr("%1.%2 points nowhere (%3)");
    const QStringView table = checked.table.name;
    report_rows(told.arg(table, checked.column.name, checked.column.target), table,
                checked.dangles(),
                checked.meaning == dangling::fault ? found_.findings : found_.notes);
}

void inspector::look_at_telephone_numbers(const number_column& column) {
    QStringList mendable;
    QStringList others;
    for (const stored_number& number : untidy_numbers(database_, column)) {
        (number.dialled.isEmpty() ? others : mendable).append(QString::number(number.row));
    }
    put_down(
        texts::tr("%1.mobile is not as it is dialled (see smsdb tidy --numbers)").arg(column.table),
        mendable, found_.notes);
    put_down(texts::tr("%1.mobile is no number that can be dialled").arg(column.table), others,
             found_.notes);
}

void inspector::look_at_operators() {
    if (database_.number(
            u"SELECT count(*) FROM rights NATURAL JOIN users WHERE funid = 1 AND username IS NOT NULL AND password IS NOT NULL"_s) ==
        0) {
        report(texts::tr("nobody can manage the operators (see smsdb grant)"));
    }
}

void inspector::look_at_parameters() {
    const qint64 rows = database_.number(u"SELECT count(*) FROM parameters"_s);
    if (rows != 1) {
        report(texts::tr("parameters: holds %1 rows where there must be one").arg(rows));
    }
    report_rows(texts::tr("parameters.port is empty"), u"parameters"_s, u"port IS NULL"_s);
}

void inspector::look_at_view_definitions() {
    for (const QString& view : fresh_->column(u"SELECT ViewNo FROM viewdef"_s)) {
        for (const QString& table : {u"viewdef"_s, u"viewitems"_s}) {
            if (database_.number(
                    u"SELECT count(*) FROM %1 WHERE ViewNo = '%2'"_s.arg(table, view)) == 0) {
                report(texts::tr("%1: the list %2 is not defined").arg(table, view));
            }
        }
    }
}

inspection inspector::inspect() {
    for (const QString& fault : integrity_faults(database_)) {
        sound_ = false;
        report(texts::tr("damaged: %1").arg(fault));
    }
    attempt([&] { look_at_schema(); });
    for (const table_description& table : all_tables()) {
        if (!table.key().isEmpty()) {
            attempt([&] { look_at_key(table.name, table.key()); });
        }
    }
    if (found_.numberings.isEmpty() && sound_) {
        throw DataError(DataError::Kind::not_a_database,
                        texts::tr("it holds no table of this system"));
    }
    for (const table_description& table : all_tables()) {
        attempt([&] { look_at_numbers(table); });
    }
    for (const reference& checked : all_references()) {
        attempt([&] { look_at_reference(checked); });
    }
    for (const row_fault& fault : row_faults()) {
        attempt([&] { report_rows(fault.what, fault.table, fault.condition.toString()); });
    }
    for (const number_column& column : number_columns()) {
        attempt([&] { look_at_telephone_numbers(column); });
    }
    attempt([&] { look_at_operators(); });
    attempt([&] { look_at_parameters(); });
    attempt([&] { look_at_view_definitions(); });
    return found_;
}

} // namespace

inspection inspect(physical_database& database) {
    const transaction moment(database, physical_database::purpose::reading);
    return inspector(database).inspect();
}

QString lines(const inspection& found) {
    QString text;
    for (const QString& note : found.notes) {
        text += texts::tr("note: %1\n").arg(note);
    }
    for (const QString& finding : found.findings) {
        text += texts::tr("finding: %1\n").arg(finding);
    }
    return text;
}

QStringList integrity_faults(physical_database& database) {
    try {
        QStringList faults = database.column(u"PRAGMA integrity_check"_s).join(u'\n').split(u'\n');
        faults.removeAll(u"ok"_s);
        return faults;
    } catch (const DataError& error) { // so broken that the check itself gives up
        if (error.kind() != DataError::Kind::not_a_database) {
            throw;
        }
        return {error.detail()};
    }
}
