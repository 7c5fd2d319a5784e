// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/operation_log.h"
#include "listview/spListHeaders.h"
#include "listview/toolbar_builder.h"
#include "platform/recordset.h"

#include <QWidget>

#include <functional>

class DataGrid;
class QAction;
class QMdiArea;
class QToolBar;
class vc_in;

/// The one kind of list window: a toolbar above a grid that shows the rows of one view. What is the
/// entity's own it leaves to the controller.
class frmdatagrid : public QWidget {
    Q_OBJECT

public:
    /// Loads the view and opens the rows. Throws DataError.
    frmdatagrid(vc_in& controller, QString view_no, QWidget* parent = nullptr);
    ~frmdatagrid() override;
    Q_DISABLE_COPY_MOVE(frmdatagrid)

    void faddnew();
    void Fedit();
    void fdelete();
    void fFind();
    void fSort();
    void fRefresh();
    /// Lets the operator choose which columns are shown and in which order.
    void SetField();
    /// Saves widths, order and visibility of the columns.
    void FsaveLayout();
    /// The view's default condition: all rows of an entity, today's of the operation log.
    void SetDefault();
    /// Opens the rows under the view's condition; the operation log asks for it first.
    void fFilter();
    /// Loads the view definition anew and applies it to the grid.
    void updateField();
    /// Opens the record set on the view's rows.
    bool ResetCond(const spListHeaders& headers, Recordset& rows);
    /// What the current row shows in the column with this key; empty when there is no such row or
    /// column.
    [[nodiscard]] QString value(const QString& column_key) const;

private:
    void showEvent(QShowEvent* event) override;
    void press(const QString& key);
    /// Runs a command of the controller, tells when it fails, and shows the rows anew in any case.
    void run_and_refresh(const std::function<void()>& command, const QString& failure);
    void close_window();
    void take_widths();
    [[nodiscard]] qint16 current_id() const;
    void restore_position(const QVariant& key, qsizetype row);

    vc_in& controller_;
    QString view_no_;
    spListHeaders headers_;
    Recordset rows_;
    QString sort_;
    operation_condition condition_; ///< of the operation log alone
    image_list imlToolbarIcons;
    QToolBar* Toolbar1;
    DataGrid* DataGrid1;
};

/// Opens a list window in the frame, maximised. Throws DataError, and then opens none.
void open_list_window(QMdiArea& windows, vc_in& controller, const QString& view_no);
