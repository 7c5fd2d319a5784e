// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/recordset.h"
#include "platform/display_format.h"

#include <QAbstractTableModel>
#include <QList>

/// How a grid shows one field of its record set.
struct grid_column {
    /// Codes of a column's data format.
    enum class Format { general = 0, custom = 1, check_box = 4, boolean = 5 };
    /// Codes of an alignment: general puts texts left and numbers right.
    enum class Alignment { left = 0, right = 1, centre = 2, general = 3 };

    QString caption;
    QString data_field;
    int width_twips = 0; ///< 0 or less: the grid's default width
    bool visible = true;
    Alignment alignment = Alignment::general;
    Alignment heading_alignment = Alignment::left;
    Format format_type = Format::general;
    QString format;
    QString true_text;
    QString false_text;
    QString null_text;
};

/// The rows of a record set as a table model; reads cells as they are painted and copies nothing.
class recordset_model : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void set_columns(const QList<grid_column>& columns);
    [[nodiscard]] const QList<grid_column>& columns() const { return columns_; }
    /// Shows the rows of `rows`, which must outlive the binding; nullptr shows none.
    void set_recordset(const Recordset* rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

signals:
    /// A cell could not be read and is empty; told once for the rows bound.
    void cell_failed() const;

private:
    void find_fields();
    [[nodiscard]] QVariant cell(const QModelIndex& index, int role) const;
    [[nodiscard]] QString display_text(const QVariant& value, int column) const;

    QList<grid_column> columns_;
    QList<display_format> formats_;
    QList<qsizetype> fields_; ///< the record set's column behind each grid column, -1 for none
    const Recordset* rows_ = nullptr;
    mutable bool failed_ = false; ///< and that was told
};
