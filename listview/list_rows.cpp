// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/list_rows.h"

#include "listview/frmFind.h"
#include "platform/widgets/data_grid.h"

#include <algorithm>

using namespace Qt::StringLiterals;

list_rows::list_rows(data_grid& grid, QString key_column)
    : grid_(grid), key_column_(std::move(key_column)) {}

list_rows::~list_rows() {
    grid_.set_recordset(nullptr);
}

void list_rows::show(Recordset rows) {
    rows.set_Sort(rows_.Sort());
    const data_grid::place seen = grid_.seen();
    const bool has_key = seen.row >= 0 && rows_.column(key_column_) >= 0;
    const QVariant key = has_key ? rows_.Fields(key_column_) : QVariant();
    grid_.set_recordset(nullptr);
    rows_ = std::move(rows);
    restore_mark(key, seen.row);
    grid_.set_recordset(&rows_);
    grid_.show_again(seen);
}

/// The row with the key, or else the one that stands where it stood.
void list_rows::restore_mark(const QVariant& key, qsizetype row) {
    if (count() == 0) {
        return;
    }
    const qsizetype nearest = qBound<qsizetype>(0, row, count() - 1);
    rows_.set_position(nearest);
    const bool is_there = key.isNull() || rows_.Fields(key_column_) == key || go_to(key);
    if (!is_there) {
        rows_.set_position(nearest);
    }
}

bool list_rows::go_to(const QVariant& key) {
    rows_.MoveFirst();
    rows_.Find(u"[%1]=%2"_s.arg(key_column_, key.toString()));
    return !rows_.Eof();
}

bool list_rows::find(const search_request& wanted, bool forward) {
    rows_.Find(wanted.criterion(), 1,
               forward ? Recordset::SearchDirectionEnum::forward
                       : Recordset::SearchDirectionEnum::backward);
    if (rows_.Bof() || rows_.Eof()) {
        rows_.set_position(grid_.row()); // what the next command and the next search go by
        return false;
    }
    grid_.show_position();
    return true;
}

qint64 list_rows::highest_key() const {
    const row_store& store = rows_.store();
    const qsizetype column = store.column(key_column_);
    qint64 highest = 0;
    for (qsizetype row = 0; column >= 0 && row < store.rows(); ++row) {
        highest = std::max(highest, store.value(row, column).toLongLong());
    }
    return highest;
}

void list_rows::mark_newer_than(qint64 key) {
    const qint64 highest = highest_key();
    if (highest > key && go_to(highest)) {
        grid_.show_position();
    }
}
