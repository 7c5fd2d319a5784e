// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmdatagrid.h"

#include "data/strconn.h"
#include "data/view_definition.h"
#include "listview/forms/row_dialog.h"
#include "listview/frmSetList.h"
#include "listview/frmSort.h"
#include "listview/grid_columns.h"
#include "listview/list_menu.h"
#include "listview/row_export.h"
#include "listview/vc_in.h"
#include "platform/conversion.h"
#include "platform/data_error.h"
#include "platform/guarded.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"

#include <QAction>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

frmdatagrid::frmdatagrid(vc_in& controller, QString view_no, QWidget* parent)
    : QWidget(parent),
      source_(controller, std::move(view_no)),
      Toolbar1(new QToolBar(this)),
      DataGrid1(new data_grid(this)),
      rows_(*DataGrid1, controller.getidstring()) {
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
    build_tools();
    DataGrid1->setAccessibleName(headers_.vName);
    DataGrid1->set_sortable();
    connect(Toolbar1, &QToolBar::actionTriggered, this,
            guarded([this](QAction* action) { press(action->objectName()); }));
    connect(DataGrid1, &data_grid::opened, this, guarded([this] { open_row(); }));
    connect(DataGrid1, &data_grid::failed, this, guarded([this] { tell_unreadable(); }));
    connect(DataGrid1, &data_grid::row_changed, this, [this] { note({}); });
}

void frmdatagrid::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    setFocus(); // its frame hides it when it changes its state, and the focus moves on
}

const QHash<QString, frmdatagrid::list_command>& frmdatagrid::commands() {
    static const QHash<QString, list_command> commands{
        {u"Add"_s, {&frmdatagrid::faddnew, entity_command::create}},
        {u"Edit"_s, {&frmdatagrid::Fedit, entity_command::modify}},
        {u"Delete"_s, {&frmdatagrid::fdelete, entity_command::remove}},
        {u"find"_s, {&frmdatagrid::fFind}},
        {u"sort"_s, {&frmdatagrid::fSort}},
        {u"setfield"_s, {&frmdatagrid::SetField}},
        {u"refresh"_s, {&frmdatagrid::refresh_asked}},
        {u"Save"_s, {&frmdatagrid::FsaveLayout}},
        {u"Exit"_s, {&frmdatagrid::close_window}},
    };
    return commands;
}

void frmdatagrid::press(const QString& key) {
    if (const auto run = commands().value(key).run) {
        (this->*run)();
    }
}

void frmdatagrid::build_tools() {
    build_toolbar(imlToolbarIcons, *Toolbar1, headers_.ReadOnly, headers_.other);
    for (QAction* button : Toolbar1->actions()) {
        const list_command wanted = commands().value(button->objectName());
        button->setEnabled(wanted.run != nullptr &&
                           (!wanted.needs || source_.controller().can(*wanted.needs)));
    }
    add_list_menu(*DataGrid1, *Toolbar1,
                  {.show_row = [this] { show_row(); },
                   .find_again = [this] { find_again(false); },
                   .find_back = [this] { find_again(true); },
                   .export_rows = [this] { export_shown(); }});
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
    const qint64 last = rows_.highest_key(); // the insertion does not tell the new one
    run_and_refresh([this] { source_.controller().createrec(); }, u"不能创建图形资料！"_s);
    rows_.mark_newer_than(last);
}

void frmdatagrid::Fedit() {
    run_on_marked_row(&vc_in::modifyrec, u"修改错误"_s);
}

void frmdatagrid::fdelete() {
    run_on_marked_row(&vc_in::deleterec, u"删除错误"_s);
}

void frmdatagrid::run_on_marked_row(bool (vc_in::*command)(qint16), const QString& failure) {
    DataGrid1->show_marked_row();
    DataGrid1->viewport()->repaint(); // it is seen before any box or dialog comes up
    run_and_refresh([this, command] { (source_.controller().*command)(current_id()); }, failure);
}

void frmdatagrid::open_row() {
    const auto* edit = Toolbar1->findChild<QAction*>(u"Edit"_s);
    if (edit != nullptr && edit->isEnabled()) {
        Fedit();
    } else {
        show_row();
    }
}

void frmdatagrid::show_row() {
    if (DataGrid1->row() >= 0) {
        row_dialog(*DataGrid1, this).exec();
    }
}

void frmdatagrid::export_shown() {
    const QString path = export_rows(*DataGrid1, windowTitle(), this);
    if (!path.isEmpty()) {
        note(u"已导出到 "_s + QDir::toNativeSeparators(path));
    }
}

void frmdatagrid::fFind() {
    if (rows_.count() == 0) {
        return;
    }
    frmFind dialog(headers_, search_, this);
    dialog.exec();
    if (dialog.confirmed) {
        search_ = dialog.request();
        search(search_.forward);
    }
}

void frmdatagrid::find_again(bool back) {
    if (search_.key.isEmpty()) {
        fFind();
    } else if (rows_.count() > 0) {
        search(search_.forward != back);
    }
}

void frmdatagrid::search(bool forward) {
    if (!rows_.find(search_, forward)) {
        msgbox::information(u"Cann't find! "_s, u"Information"_s);
    }
}

void frmdatagrid::fSort() {
    frmSort dialog(headers_, this);
    dialog.exec();
    if (dialog.confirmed) {
        DataGrid1->sort_rows(dialog.result);
    }
}

void frmdatagrid::fRefresh() {
    Recordset rows;
    ResetCond(headers_, rows);
    rows_.show(std::move(rows));
    note({});
}

void frmdatagrid::refresh_asked() {
    unreadable_ = false;
    fRefresh();
}

void frmdatagrid::follow() {
    try {
        const QString told = note_; // of what the operator did last, and that was not this
        fRefresh();
        note(told);
    } catch (const DataError&) {
        tell_unreadable();
    }
}

void frmdatagrid::tell_unreadable() {
    if (!std::exchange(unreadable_, true)) {
        msgbox::information(u"输入错误,请查看！"_s, u"系统提示"_s);
    }
}

void frmdatagrid::SetField() {
    take_widths(headers_, *DataGrid1); // what was dragged before must not be lost
    frmSetList editor(headers_, this);
    editor.exec();
    if (editor.confirmed) {
        headers_.sort_by_position();
        apply_view(headers_, *DataGrid1);
    }
}

void frmdatagrid::FsaveLayout() {
    take_widths(headers_, *DataGrid1);
    save_view(headers_, strconn, source_.view_no());
    note(u"列表的样子已经保存"_s);
}

QString frmdatagrid::status() const {
    const QString rows = QString::number(rows_.count());
    const QString marked = QString::number(DataGrid1->row() + 1);
    const bool is_empty = rows_.count() == 0;
    const QString place = is_empty ? u"共 0 条"_s : u"第 %1 条，共 %2 条"_s.arg(marked, rows);
    return note_.isEmpty() ? place : place + u"    "_s + note_;
}

void frmdatagrid::note(const QString& done) {
    note_ = done;
    emit status_changed();
}

void frmdatagrid::SetDefault() {
    source_.reset_condition();
}

void frmdatagrid::fFilter() {
    source_.ask_condition(headers_);
    fRefresh();
}

void frmdatagrid::updateField() {
    load_view(headers_, strconn, source_.view_no());
    apply_view(headers_, *DataGrid1);
}

bool frmdatagrid::ResetCond(const spListHeaders& headers, Recordset& rows) {
    source_.open(headers, rows);
    return true;
}

QString frmdatagrid::value(const QString& column_key) const {
    const qint16 position = headers_.SUBIndex(column_key);
    return position == 0 ? QString() : DataGrid1->text(position - 1);
}

qint16 frmdatagrid::current_id() const {
    // On an empty list the key is that of a record not stored; the controller answers for it.
    return DataGrid1->row() < 0 ? qint16{0} : to_int16(value(source_.controller().getidstring()));
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
