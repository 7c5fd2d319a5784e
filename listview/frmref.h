// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeaders.h"

#include <QDialog>

#include <span>

class data_grid;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class Recordset;
class vc_in;

/// The reference picker: a modal grid from which one row is picked, and a line above it that goes
/// to the next row with a text as one types. The picked row's values go into the columns' `Other1`.
class frmref : public QDialog {
    Q_OBJECT

public:
    frmref(spListHeaders& columns, Recordset& rows, QWidget* parent = nullptr);
    ~frmref() override;
    Q_DISABLE_COPY_MOVE(frmref)

protected:
    /// The keys that move in the grid do so from the line above it, too.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void add_search_line(QBoxLayout& layout);
    /// Goes to the first row with the typed text, so many rows from the marked one on.
    void search(int skip, int step);
    /// Without a row to be found nothing can be picked: the marked one is not what was asked for.
    void tell_found(bool found);
    [[nodiscard]] int wanted_width() const;
    void pick();

    spListHeaders& columns_;
    Recordset& rows_;
    QLineEdit* txtFind;
    data_grid* DataGrid1;
    QLabel* lblFind;
    QPushButton* cmdok;
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
                                                std::span<const picker_column> columns);

/// Shows the controller's rows in a picker and returns the columns with the picked row's values.
/// Throws DataError.
[[nodiscard]] spListHeaders pick_reference(vc_in& controller, spListHeaders columns);
