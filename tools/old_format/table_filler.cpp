// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/table_filler.h"

#include "tools/inspection.h"
#include "tools/texts.h"

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

/// Tables whose rows the old system did not number.
bool is_numbered_here(QStringView table) {
    return table == u"rights" || table == u"CONSTS" || table.startsWith(u"view");
}

/// What stands where there must be a value. A message that may have been sent is never sent again.
int fallback(QStringView column) {
    return column == u"sendisok" ? -1 : 0;
}

} // namespace

table_filler::table_filler(physical_database& database, losses& lost,
                           const table_description& table, const QString& target,
                           const QStringList& old_columns)
    : lost_(lost), table_(table) {
    QSet<qsizetype> used;
    QStringList names;
    for (const table_column& column : table.columns) {
        const QString name = column.name.toString();
        filled_column wanted{column};
        for (qsizetype i = 0; i < old_columns.size(); ++i) {
            if (old_columns.at(i).compare(name, Qt::CaseInsensitive) == 0) {
                wanted.source = i;
            }
        }
        if (wanted.source >= 0) {
            used.insert(wanted.source);
        } else if (column.kind == column_kind::key && is_numbered_here(table.name)) {
            continue;
        } else {
            lost_.add(texts::tr("column %1.%2").arg(table.name, name),
                      texts::tr("the old database has none"));
        }
        names.append(name);
        columns_.append(wanted);
    }
    for (qsizetype i = 0; i < old_columns.size(); ++i) {
        if (!used.contains(i)) {
            lost_.add(texts::tr("column %1.%2").arg(table.name, old_columns.at(i)),
                      texts::tr("this system has no such column"));
        }
    }
    if (!used.isEmpty()) {
        insertion_.emplace(
            database, u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(
                          target, names.join(u','), QStringList(names.size(), u"?"_s).join(u',')));
    }
}

QJsonValue table_filler::old_value(const QJsonArray& row, const filled_column& wanted) {
    return wanted.source < 0 ? QJsonValue() : row.at(wanted.source);
}

qint64 table_filler::number_of(const QJsonArray& row, const QList<carried>& values) const {
    for (qsizetype i = 0; i < columns_.size(); ++i) {
        const carried& key = values.at(i);
        if (columns_.at(i).ours.kind == column_kind::key && key.value.isValid()) {
            bool is_whole = true;
            const qint64 number =
                key.fault.isEmpty() ? key.value.toLongLong()
                                    : text_of(old_value(row, columns_.at(i))).toLongLong(&is_whole);
            return is_whole ? number : read_; // what is none is named by its place
        }
    }
    return read_;
}

QString table_filler::objection(const QList<carried>& values, qint64 number) const {
    for (qsizetype i = 0; i < values.size(); ++i) {
        const carried& found = values.at(i);
        if (columns_.at(i).ours.kind != column_kind::key) {
            if (table_.is_relation && !found.fault.isEmpty()) {
                return found.fault;
            }
            continue;
        }
        if (!found.value.isValid()) {
            return texts::tr("it has no number");
        }
        if (!found.fault.isEmpty()) {
            return texts::tr("its number is not one of those that a screen can hold, up to %1")
                .arg(last_number);
        }
        if (numbers_.contains(number)) {
            return texts::tr("its number is given twice");
        }
    }
    return table_.name == u"parameters" && written_ > 0 ? texts::tr("only one row is ever used")
                                                        : QString();
}

/// The values as they go into the table; what is not carried is added to the losses.
QVariantList table_filler::accounted(const QList<carried>& values, qint64 number) {
    QVariantList result;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const filled_column& wanted = columns_.at(i);
        const carried& found = values.at(i);
        if (!found.fault.isEmpty()) {
            lost_.add(u"%1.%2"_s.arg(table_.name, wanted.ours.name), found.fault, number);
        }
        const bool is_missing = !found.value.isValid() || !found.fault.isEmpty();
        result.append(wanted.ours.needs_value && is_missing ? QVariant(fallback(wanted.ours.name))
                                                            : found.value);
    }
    return result;
}

void table_filler::take(const QJsonArray& row) {
    ++read_;
    if (!insertion_) {
        return; // every column has been reported
    }
    QList<carried> values;
    for (const filled_column& wanted : columns_) {
        values.append(carry(old_value(row, wanted), wanted.ours.kind));
    }
    const qint64 number = number_of(row, values);
    const QString reason = objection(values, number);
    if (!reason.isEmpty()) {
        lost_.add(table_.name.toString(), reason, number);
        return;
    }
    insertion_->run(accounted(values, number));
    numbers_.insert(number);
    ++written_;
}

} // namespace old_format
