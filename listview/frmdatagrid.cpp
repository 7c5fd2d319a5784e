// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmdatagrid.h"

#include "data/fmtdatetime.h"
#include "data/strconn.h"
#include "listview/frmFind.h"
#include "listview/frmSetList.h"
#include "listview/frmSort.h"
#include "listview/frmconduser.h"
#include "listview/vc_in.h"
#include "listview/view_definition.h"
#include "platform/conversion.h"
#include "platform/guarded.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmdatagrid::frmdatagrid(vc_in& controller, QString view_no, QWidget* parent)
    : QWidget(parent),
      controller_(controller),
      view_no_(std::move(view_no)),
      Toolbar1(new QToolBar(this)),
      DataGrid1(new DataGrid(this)) {
    Toolbar1->setObjectName(u"Toolbar1"_s);
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    DataGrid1->setObjectName(u"DataGrid1"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(Toolbar1);
    layout->addWidget(DataGrid1);
    setFocusProxy(DataGrid1);

    updateField();
    SetDefault();
    fFilter();
    setWindowTitle(headers_.vName);
    build_toolbar(imlToolbarIcons, *Toolbar1, headers_.ReadOnly, headers_.other);
    DataGrid1->setAccessibleName(headers_.vName);
    DataGrid1->set_recordset(&rows_);

    connect(Toolbar1, &QToolBar::actionTriggered, this,
            guarded([this](QAction* action) { press(action->objectName()); }));
}

frmdatagrid::~frmdatagrid() {
    DataGrid1->set_recordset(nullptr);
}

void frmdatagrid::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    setFocus(); // its frame hides it when it changes its state, and the focus moves on
}

void frmdatagrid::press(const QString& key) {
    static const QHash<QString, void (frmdatagrid::*)()> commands{
        {u"Add"_s, &frmdatagrid::faddnew},       {u"Edit"_s, &frmdatagrid::Fedit},
        {u"Delete"_s, &frmdatagrid::fdelete},    {u"find"_s, &frmdatagrid::fFind},
        {u"sort"_s, &frmdatagrid::fSort},        {u"setfield"_s, &frmdatagrid::SetField},
        {u"refresh"_s, &frmdatagrid::fRefresh},  {u"Save"_s, &frmdatagrid::FsaveLayout},
        {u"Exit"_s, &frmdatagrid::close_window},
    };
    if (const auto command = commands.value(key)) {
        (this->*command)();
    }
}

void frmdatagrid::run_and_refresh(const std::function<void()>& command, const QString& failure) {
    try {
        command();
    } catch (const std::exception&) {
        msgbox::information(failure, u"错误"_s);
    }
    fRefresh();
}

void frmdatagrid::faddnew() {
    run_and_refresh([this] { controller_.createrec(); }, u"不能创建图形资料！"_s);
}

void frmdatagrid::Fedit() {
    run_and_refresh([this] { controller_.modifyrec(current_id()); }, u"修改错误"_s);
}

void frmdatagrid::fdelete() {
    run_and_refresh([this] { controller_.deleterec(current_id()); }, u"删除错误"_s);
}

void frmdatagrid::fFind() {
    if (rows_.Bof() && rows_.Eof()) {
        return;
    }
    frmFind dialog(headers_, this);
    dialog.exec();
    if (!dialog.confirmed) {
        return;
    }
    if (rows_.Bof() || rows_.Eof()) {
        rows_.MoveFirst();
    }
    rows_.Find(dialog.result, 1,
               dialog.forward ? Recordset::SearchDirectionEnum::forward
                              : Recordset::SearchDirectionEnum::backward);
    if (rows_.Bof() || rows_.Eof()) {
        msgbox::information(u"Cann't find! "_s, u"Information"_s);
    } else {
        DataGrid1->show_position();
    }
}

void frmdatagrid::fSort() {
    frmSort dialog(headers_, this);
    dialog.exec();
    if (dialog.confirmed) {
        rows_.set_Sort(dialog.result);
        sort_ = dialog.result;
        DataGrid1->refresh_rows();
    }
}

void frmdatagrid::fRefresh() {
    const int row = DataGrid1->row(); // a search in vain leaves the cursor elsewhere
    const bool on_row = row >= 0;
    if (on_row) {
        rows_.set_position(row);
    }
    const QString key = controller_.getidstring();
    const QVariant id = on_row && rows_.column(key) >= 0 ? rows_.Fields(key) : QVariant();

    // The rows on the screen stay when the new ones cannot be had.
    Recordset rows;
    ResetCond(headers_, rows);
    if (!sort_.isEmpty()) {
        rows.set_Sort(sort_);
    }
    DataGrid1->set_recordset(nullptr);
    rows_ = std::move(rows);
    restore_position(id, row);
    DataGrid1->set_recordset(&rows_);
}

void frmdatagrid::restore_position(const QVariant& key, qsizetype row) {
    if (rows_.Bof() && rows_.Eof()) {
        return;
    }
    const qsizetype nearest = qBound<qsizetype>(0, row, rows_.RecordCount() - 1);
    rows_.set_position(nearest);
    const QString column = controller_.getidstring();
    if (key.isNull() || rows_.Fields(column) == key) {
        return;
    }
    rows_.MoveFirst();
    rows_.Find(u"[%1]=%2"_s.arg(column, key.toString()));
    if (rows_.Eof()) {
        rows_.set_position(nearest);
    }
}

void frmdatagrid::SetField() {
    take_widths(); // what was dragged before must not be lost
    frmSetList editor(headers_, this);
    editor.exec();
    if (editor.confirmed) {
        headers_.sort_by_position();
        DataGrid1->set_recordset(nullptr);
        apply_view(headers_, *DataGrid1);
        DataGrid1->set_recordset(&rows_);
    }
}

void frmdatagrid::take_widths() {
    for (qsizetype i = 1; i <= headers_.Count(); ++i) {
        const int column = static_cast<int>(i - 1);
        if (!DataGrid1->isColumnHidden(column)) { // a hidden column keeps the width it had
            headers_.Item(i).Width = to_int16(QString::number(DataGrid1->width_twips(column)));
        }
    }
}

void frmdatagrid::FsaveLayout() {
    take_widths();
    save_view(headers_, strconn, view_no_);
}

void frmdatagrid::SetDefault() {
    const QDate today = system_clock().date();
    condition_ = {.userid = 0, .start = today.startOfDay(), .end = today.endOfDay()};
}

void frmdatagrid::fFilter() {
    if (view_no_ == operation_log_view) {
        frmconduser dialog(condition_, controller_, QApplication::activeWindow());
        dialog.exec();
        if (dialog.confirmed) {
            condition_ = dialog.condition;
        }
        store_condition(headers_, condition_);
    }
    ResetCond(headers_, rows_);
}

void frmdatagrid::updateField() {
    DataGrid1->set_recordset(nullptr);
    load_view(headers_, strconn, view_no_);
    apply_view(headers_, *DataGrid1);
}

bool frmdatagrid::ResetCond(const spListHeaders& headers, Recordset& rows) {
    if (view_no_ == operation_log_view) {
        open_operation_log(headers, rows);
    } else {
        controller_.openrs(rows);
    }
    return true;
}

QString frmdatagrid::value(const QString& column_key) const {
    const qint16 position = headers_.SUBIndex(column_key);
    return position == 0 ? QString() : DataGrid1->text(position - 1);
}

qint16 frmdatagrid::current_id() const {
    // On an empty list the key is that of a record not stored; the controller answers for it.
    return DataGrid1->row() < 0 ? qint16{0} : to_int16(value(controller_.getidstring()));
}

void frmdatagrid::close_window() {
    if (auto* window = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        window->close();
    } else {
        close();
    }
}

void open_list_window(QMdiArea& windows, vc_in& controller, const QString& view_no) {
    auto window = std::make_unique<frmdatagrid>(controller, view_no);
    windows.addSubWindow(window.release())->showMaximized();
}
