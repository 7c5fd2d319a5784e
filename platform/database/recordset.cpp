// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/recordset.h"

#include "platform/data_error.h"
#include "platform/database/connection_pool.h"
#include "platform/database/criterion.h"
#include "platform/database/row_order.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void raise_cursor(const QString& detail) {
    throw DataError(DataError::Kind::cursor, detail);
}

/// The table of "select * from TABLE …", or nothing for any other statement.
QRegularExpressionMatch match_table_query(const QString& statement) {
    static const QRegularExpression pattern(
        uR"(^\s*select\s*\*\s*from\s+(?:\[([^\]]+)\]|(\w+))(.*)$)"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return pattern.match(statement);
}

} // namespace

void Recordset::set_ActiveConnection(const QString& connection_string) {
    connection_string_ = connection_string;
    database_.reset();
}

void Recordset::set_ActiveConnection(const Connection& connection) {
    static_cast<void>(connection.database());
    connection_string_.clear();
    database_ = connection.database_;
}

void Recordset::detach() {
    connection_string_.clear();
    database_.reset();
}

physical_database& Recordset::database() {
    if (!database_) {
        if (connection_string_.isEmpty()) {
            raise_cursor(u"the record set has no connection"_s);
        }
        database_ = connection_pool::acquire(connection_string_);
    }
    return *database_;
}

void Recordset::Open(const QString& source) {
    require_closed();
    const bool whole_table = !source.trimmed().contains(u' ');
    const QString statement = whole_table ? u"select * from [%1]"_s.arg(source.trimmed()) : source;
    table_.clear();
    const auto table = match_table_query(statement);
    if (LockType == LockTypeEnum::optimistic && table.hasMatch()) {
        table_ = table.captured(table.capturedLength(1) > 0 ? 1 : 2);
        read_rows(u"select %1, * from [%2]%3"_s.arg(database().row_key(table_), table_,
                                                    table.captured(3)));
    } else {
        read_rows(statement);
    }
    state_ = StateEnum::open;
    position_ = 0;
}

void Recordset::read_rows(const QString& statement) {
    store_ = database().rows(statement);
    row_ids_ = table_.isEmpty() ? std::vector<qint64>() : store_.take_first_column();
    order_.clear();
    sort_.clear();
    dirty_.clear();
}

void Recordset::OpenInMemory(const QStringList& fields) {
    require_closed();
    table_.clear();
    store_ = row_store(fields);
    state_ = StateEnum::open;
    position_ = 0;
}

void Recordset::Close() {
    require_open();
    store_ = row_store();
    order_.clear();
    sort_.clear();
    row_ids_.clear();
    dirty_.clear();
    state_ = StateEnum::closed;
    database_.reset();
}

Recordset::StateEnum Recordset::State() const {
    return state_;
}

bool Recordset::Bof() const {
    require_open();
    return position_ < 0 || RecordCount() == 0;
}

bool Recordset::Eof() const {
    require_open();
    return position_ >= RecordCount();
}

void Recordset::MoveFirst() {
    require_open();
    if (RecordCount() == 0) {
        raise_cursor(u"the record set is empty"_s);
    }
    set_position(0);
}

void Recordset::MoveNext() {
    if (Eof()) {
        raise_cursor(u"the record set is at its end"_s);
    }
    set_position(position_ + 1);
}

qsizetype Recordset::RecordCount() const {
    return store_.rows();
}

qsizetype Recordset::position() const {
    return position_;
}

void Recordset::set_position(qsizetype row) {
    require_open();
    if (!dirty_.empty()) {
        Update(); // a changed row is stored before it is left
    }
    position_ = qBound<qsizetype>(-1, row, RecordCount());
}

void Recordset::Find(const QString& condition, qsizetype skip, SearchDirectionEnum direction) {
    require_open();
    const criterion wanted(condition, store_);
    if (Bof() || Eof()) {
        raise_cursor(u"there is no current row to search from"_s);
    }
    const auto step = static_cast<qsizetype>(direction);
    qsizetype row = position_ + skip * step;
    while (row >= 0 && row < RecordCount() && !wanted.matches(store_, store_row(row))) {
        row += step;
    }
    set_position(row);
}

void Recordset::set_Sort(const QString& order) {
    require_open();
    order_ = sorted_rows(store_, order);
    sort_ = order;
    position_ = 0;
}

QVariant Recordset::Fields(const QString& name) const {
    return store_.value(current_row(), require_column(name));
}

void Recordset::set_Fields(const QString& name, const QVariant& value) {
    const qsizetype column = require_column(name);
    store_.set_value(current_row(), column, value);
    if (!table_.isEmpty()) {
        dirty_.push_back(column);
    }
}

void Recordset::AddNew() {
    require_open();
    store_.append_row();
    row_ids_.push_back(0);
    if (!order_.empty()) {
        order_.push_back(static_cast<qint32>(store_.rows() - 1));
    }
    position_ = store_.rows() - 1;
}

void Recordset::Update() {
    const qsizetype row = current_row();
    if (table_.isEmpty()) {
        throw DataError(DataError::Kind::statement, u"the record set is read-only"_s);
    }
    if (row_ids_.at(static_cast<size_t>(row)) == 0) {
        store_new_row(row);
    } else if (!dirty_.empty()) {
        store_changed_row(row);
    }
    dirty_.clear();
}

QVariantList Recordset::changed_values(qsizetype row) const {
    QVariantList values;
    for (const qsizetype column : dirty_) {
        values.append(store_.value(row, column));
    }
    return values;
}

void Recordset::store_new_row(qsizetype row) {
    QStringList names;
    for (const qsizetype column : dirty_) {
        names.append(u"[%1]"_s.arg(store_.columns().at(column)));
    }
    const QStringList marks(names.size(), u"?"_s);
    database().execute(
        u"INSERT INTO [%1] (%2) values (%3)"_s.arg(table_, names.join(u','), marks.join(u',')),
        changed_values(row));
    row_ids_.at(static_cast<size_t>(row)) = database().last_key();
}

void Recordset::store_changed_row(qsizetype row) {
    QStringList settings;
    for (const qsizetype column : dirty_) {
        settings.append(u"[%1]=?"_s.arg(store_.columns().at(column)));
    }
    const qint64 row_id = row_ids_.at(static_cast<size_t>(row));
    database().execute(u"update [%1] set %2 where %3=?"_s.arg(table_, settings.join(u','),
                                                              database().row_key(table_)),
                       changed_values(row) << row_id);
}

qsizetype Recordset::store_row(qsizetype row) const {
    return order_.empty() ? row : order_.at(static_cast<size_t>(row));
}

void Recordset::require_closed() const {
    if (state_ == StateEnum::open) {
        raise_cursor(u"the record set is open already"_s);
    }
}

void Recordset::require_open() const {
    if (state_ == StateEnum::closed) {
        raise_cursor(u"the record set is closed"_s);
    }
}

qsizetype Recordset::current_row() const {
    if (Bof() || Eof()) {
        raise_cursor(u"there is no current row"_s);
    }
    return store_row(position_);
}

qsizetype Recordset::require_column(const QString& name) const {
    const qsizetype column = store_.column(name);
    if (column < 0) {
        raise_cursor(u"no field \"%1\""_s.arg(name));
    }
    return column;
}
