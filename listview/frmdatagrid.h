// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeaders.h"
#include "listview/frmFind.h"
#include "listview/list_rows.h"
#include "listview/list_source.h"
#include "listview/toolbar_builder.h"

#include <QWidget>

#include <functional>
#include <optional>

class data_grid;
class QMdiArea;
class QToolBar;
class vc_in;
enum class entity_command;

/// The one kind of list window: a toolbar above a grid that shows the rows of one view. What is the
/// entity's own it leaves to the controller.
class frmdatagrid : public QWidget {
    Q_OBJECT

public:
    /// Loads the view and opens the rows. Throws DataError.
    frmdatagrid(vc_in& controller, QString view_no, QWidget* parent = nullptr);

    void faddnew();
    void Fedit();
    void fdelete();
    void fFind();
    /// Repeats the search, the same way or back; asks what for when there was none.
    void find_again(bool back);
    void fSort();
    /// Reads the rows anew. The marked row stays marked and where it is seen. Throws DataError, and
    /// then all stays as it was.
    void fRefresh();
    /// The same unasked, because rows have changed; when they cannot be read, a box tells it once.
    void follow();
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

    [[nodiscard]] const vc_in& controller() const { return source_.controller(); }
    /// Which row is marked and of how many; and what was done last, if it shows nowhere else.
    [[nodiscard]] QString status() const;

signals:
    void status_changed();

private:
    struct list_command {
        void (frmdatagrid::*run)() = nullptr;
        std::optional<entity_command> needs = {}; ///< of the controller
    };

    void showEvent(QShowEvent* event) override;
    /// What the toolbar's keys do.
    [[nodiscard]] static const QHash<QString, list_command>& commands();
    void press(const QString& key);
    /// Fills the toolbar and the context menu; what does nothing is grey.
    void build_tools();
    void refresh_asked();
    /// The marked row was double-clicked, or Enter pressed on it.
    void open_row();
    void show_row();
    void export_shown();
    void note(const QString& done);
    void search(bool forward);
    void tell_unreadable();
    /// Runs a command of the controller, tells when it fails, and shows the rows anew in any case.
    void run_and_refresh(const std::function<void()>& command, const QString& failure);
    void run_on_marked_row(bool (vc_in::*command)(qint16), const QString& failure);
    void close_window();
    [[nodiscard]] qint16 current_id() const;

    list_source source_;
    spListHeaders headers_;
    search_request search_; ///< the last one
    QString note_;          ///< what was done last
    bool unreadable_ = false;
    image_list imlToolbarIcons;
    QToolBar* Toolbar1;
    data_grid* DataGrid1;
    list_rows rows_;
};

/// Opens a list window in the frame, maximised. Throws DataError, and then opens none.
void open_list_window(QMdiArea& windows, vc_in& controller, const QString& view_no);
