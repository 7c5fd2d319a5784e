// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/recordset.h"

#include <QDialog>

class data_grid;
class QBoxLayout;
class spListHeaders;

/// The column layout editor: which columns of a view are shown, and in which order. Changes the
/// definition when confirmed.
class frmSetList : public QDialog {
    Q_OBJECT

public:
    bool confirmed = false;

    explicit frmSetList(spListHeaders& headers, QWidget* parent = nullptr);
    ~frmSetList() override;
    Q_DISABLE_COPY_MOVE(frmSetList)

private:
    void add_mover(QBoxLayout& movers, const QString& name, const QString& caption, int step);
    void fill();
    void toggle();
    void move(int step);
    /// Exchanges two rows of the grid.
    void ExchPlace(qsizetype row, qsizetype other);
    [[nodiscard]] bool hides_all() const;
    void confirm();

    spListHeaders& headers_;
    Recordset rows_; ///< a row a column of the view, in memory
    data_grid* MSHFlexGrid1;
};
