// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/grid_columns.h"

#include "data/view_definition.h"
#include "platform/conversion.h"
#include "platform/widgets/data_grid.h"

void apply_view(const spListHeaders& headers, data_grid& grid) {
    QList<grid_column> columns;
    for (const spListHeader& column : headers) {
        columns.append({.caption = column.caption,
                        .data_field = column.key,
                        .width_twips = column.Width,
                        .visible = column.Visible != 0 && !is_secret(column.key),
                        .alignment = static_cast<grid_column::Alignment>(column.TAlignment),
                        .heading_alignment = static_cast<grid_column::Alignment>(column.HAlignment),
                        .format_type = static_cast<grid_column::Format>(column.FormatType),
                        .format = column.FormatStr,
                        .true_text = column.DispTrue,
                        .false_text = column.DispFalse,
                        .null_text = column.DispNull});
    }
    grid.set_columns(columns);
}

void take_widths(spListHeaders& headers, const data_grid& grid) {
    for (const int column : grid.shown_columns()) {
        headers.Item(column + 1).Width = to_int16(QString::number(grid.width_twips(column)));
    }
}
