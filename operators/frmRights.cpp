// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/frmRights.h"

#include "data/c_rights.h"
#include "data/c_users.h"
#include "data/strconn.h"
#include "data/view_definition.h"
#include "listview/grid_columns.h"
#include "platform/guarded.h"
#include "platform/try_step.h"
#include "platform/widgets/data_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

void shape_grid(data_grid& grid, const QString& view_no) {
    spListHeaders headers;
    load_view(headers, strconn, view_no);
    apply_view(headers, grid);
}

bool on_row(const Recordset& rs) {
    return rs.State() == Recordset::StateEnum::open && !rs.Bof() && !rs.Eof();
}

data_grid* add_grid(QGridLayout& layout, int column, const QString& name, const QString& caption) {
    auto* label = new QLabel(caption);
    label->setObjectName(u"Label1"_s);
    layout.addWidget(label, 0, column);
    auto* grid = new data_grid;
    grid->setObjectName(name);
    grid->setAccessibleName(caption);
    label->setBuddy(grid);
    layout.addWidget(grid, 1, column);
    return grid;
}

} // namespace

frmRights::frmRights(QWidget* parent) : QDialog(parent) {
    setWindowTitle(u"操作员权限管理"_s);
    auto* layout = new QGridLayout(this);
    dataUsers = add_grid(*layout, 0, u"dataUsers"_s, u"操作员列表："_s);
    dataFuns = add_grid(*layout, 1, u"dataFuns"_s, u"设置操作员的权限(双击鼠标选择)："_s);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 26);

    try_step([this] { read_users(); });
    try_step([this] { read_functions(); });
    try_step([this] { shape_grid(*dataUsers, u"vusers"_s); });
    try_step([this] { shape_grid(*dataFuns, u"vrights"_s); });
    dataUsers->set_recordset(&users_);
    dataFuns->set_recordset(&functions_);
    try_step([this] { show_rights_of_current_user(); });
    connect(dataUsers, &data_grid::row_changed, this,
            guarded([this] { show_rights_of_current_user(); }));
    connect(dataFuns, &data_grid::toggled, this, guarded([this] { toggle(); }));
}

frmRights::~frmRights() {
    dataUsers->set_recordset(nullptr);
    dataFuns->set_recordset(nullptr);
}

void frmRights::read_users() {
    c_users().openrs(users_);
}

void frmRights::read_functions() {
    functions_.OpenInMemory({u"funid"_s, u"funName"_s, u"Selected"_s});
    Recordset stored;
    c_rights().open_functions(stored);
    for (; !stored.Eof(); stored.MoveNext()) {
        functions_.AddNew();
        functions_.set_Fields(u"funid"_s, stored.Fields(u"FunId"_s));
        functions_.set_Fields(u"funName"_s, stored.Fields(u"funName"_s));
        functions_.set_Fields(u"Selected"_s, 0);
    }
    functions_.set_position(0);
}

void frmRights::ResetFuns() {
    for (qsizetype row = 0; row < functions_.RecordCount(); ++row) {
        functions_.set_position(row);
        functions_.set_Fields(u"Selected"_s, 0);
    }
}

void frmRights::GetOneRights(qint32 userid) {
    if (functions_.RecordCount() == 0) {
        return;
    }
    rights_are_known_ = false;
    const auto leave_the_cursor = qScopeGuard([this, current = functions_.position()] {
        functions_.set_position(current);
        dataFuns->viewport()->update();
    });
    ResetFuns();
    Recordset rights;
    rights.set_ActiveConnection(strconn);
    c_rights::openrs(rights, userid);
    for (; !rights.Eof(); rights.MoveNext()) {
        functions_.MoveFirst();
        functions_.Find(u"funid=%1"_s.arg(rights.Fields(u"funid"_s).toInt()));
        if (!functions_.Eof()) {
            functions_.set_Fields(u"Selected"_s, -1);
        }
    }
    rights_are_known_ = true;
}

void frmRights::show_rights_of_current_user() {
    if (on_row(users_)) {
        GetOneRights(users_.Fields(u"userid"_s).toInt());
    }
}

void frmRights::toggle() {
    if (dataUsers->row() < 0 || dataFuns->row() < 0) {
        return;
    }
    if (!rights_are_known_) { // an empty mark may stand for a right that is held
        show_rights_of_current_user();
        return;
    }
    // What is changed is what one sees marked.
    users_.set_position(dataUsers->row());
    functions_.set_position(dataFuns->row());
    dataFuns->show_position();
    const qint32 userid = users_.Fields(u"userid"_s).toInt();
    const qint32 funid = functions_.Fields(u"funid"_s).toInt();
    const bool selected = functions_.Fields(u"Selected"_s).toInt() == 0;
    // The mark follows the table: it stays as it was when the write fails.
    if (selected) {
        ADDRight(userid, funid);
    } else {
        DeleteRight(userid, funid);
    }
    functions_.set_Fields(u"Selected"_s, selected ? -1 : 0);
    dataFuns->viewport()->update();
}

void frmRights::ADDRight(qint32 userid, qint32 funid) {
    c_rights().addrec(userid, funid);
}

void frmRights::DeleteRight(qint32 userid, qint32 funid) {
    c_rights().deleterec(userid, funid);
}
