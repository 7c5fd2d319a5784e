// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/widgets/recordset_model.h"

#include <utility>

namespace {

Qt::Alignment to_alignment(grid_column::Alignment alignment, bool is_number) {
    switch (alignment) {
    case grid_column::Alignment::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case grid_column::Alignment::centre:
        return Qt::AlignCenter;
    case grid_column::Alignment::general:
        return (is_number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    case grid_column::Alignment::left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

/// True, false or neither, as a Yes/No column holds it.
bool is_true(const QVariant& value) {
    return value.toInt() != 0;
}

} // namespace

void recordset_model::set_columns(const QList<grid_column>& columns) {
    beginResetModel();
    columns_ = columns;
    formats_.clear();
    for (const grid_column& column : columns) {
        formats_.append(column.format_type == grid_column::Format::custom
                            ? display_format(column.format)
                            : display_format());
    }
    find_fields();
    endResetModel();
}

void recordset_model::set_recordset(const Recordset* rows) {
    beginResetModel();
    rows_ = rows;
    failed_ = false;
    find_fields();
    endResetModel();
}

void recordset_model::find_fields() {
    fields_.clear();
    for (const grid_column& column : columns_) {
        fields_.append(rows_ == nullptr ? -1 : rows_->column(column.data_field));
    }
}

int recordset_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || rows_ == nullptr ? 0 : static_cast<int>(rows_->RecordCount());
}

int recordset_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant recordset_model::data(const QModelIndex& index, int role) const {
    try {
        return cell(index, role);
    } catch (const std::exception&) { // nothing may pass through the view that asks
        if (!std::exchange(failed_, true)) {
            emit cell_failed();
        }
        return {};
    }
}

QVariant recordset_model::cell(const QModelIndex& index, int role) const {
    if (!index.isValid() || fields_.value(index.column(), -1) < 0) {
        return {};
    }
    const grid_column& column = columns_.at(index.column());
    const bool check_box = column.format_type == grid_column::Format::check_box;
    const qsizetype row = rows_->store_row(index.row());
    const qsizetype field = fields_.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return check_box ? QVariant()
                         : QVariant(display_text(rows_->store().value(row, field), index.column()));
    case Qt::CheckStateRole:
        return check_box ? QVariant(is_true(rows_->store().value(row, field)) ? Qt::Checked
                                                                              : Qt::Unchecked)
                         : QVariant();
    case Qt::TextAlignmentRole: {
        const row_store::Type type = rows_->store().type(row, field);
        const bool is_number = type == row_store::Type::integer || type == row_store::Type::real;
        return QVariant::fromValue(to_alignment(column.alignment, is_number));
    }
    default:
        return {};
    }
}

QString recordset_model::display_text(const QVariant& value, int column) const {
    const grid_column& shown = columns_.at(column);
    if (value.isNull()) {
        return shown.null_text;
    }
    if (shown.format_type == grid_column::Format::boolean) {
        return is_true(value) ? shown.true_text : shown.false_text;
    }
    return formats_.at(column).apply(value);
}

QVariant recordset_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (section < 0 || section >= columns_.size()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(to_alignment(columns_.at(section).heading_alignment, false));
    }
    return role == Qt::DisplayRole ? QVariant(columns_.at(section).caption) : QVariant();
}
