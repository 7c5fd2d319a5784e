// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/spListHeaders.h"

#include <QDialog>

class DataGrid;
class Recordset;
class vc_in;

/// The reference picker: a modal grid from which one row is picked. The picked row's values go into
/// the columns' `Other1`.
class frmref : public QDialog {
    Q_OBJECT

public:
    frmref(spListHeaders& columns, Recordset& rows, QWidget* parent = nullptr);
    ~frmref() override;
    Q_DISABLE_COPY_MOVE(frmref)

private:
    [[nodiscard]] int wanted_width() const;
    void pick();

    spListHeaders& columns_;
    DataGrid* DataGrid1;
};

/// One column of a picker.
struct picker_column {
    QStringView key;
    QStringView caption;
    qint16 width = 0; ///< twips
    QStringView format = {};
};

/// Makes the column set of a picker, `Other1` empty.
[[nodiscard]] spListHeaders make_picker_columns(const QString& caption, const QString& view_no,
                                                std::initializer_list<picker_column> columns);

/// Shows the controller's rows in a picker and returns the columns with the picked row's values.
/// Throws DataError.
[[nodiscard]] spListHeaders pick_reference(vc_in& controller, spListHeaders columns);
