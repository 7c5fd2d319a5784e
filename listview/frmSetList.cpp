// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmSetList.h"

#include "data/spListHeaders.h"
#include "listview/forms/dialog_buttons.h"
#include "listview/grid_columns.h"
#include "platform/guarded.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList fields{u"Text"_s, u"Visible"_s, u"Key"_s, u"CanSet"_s};

/// How the editor's own grid shows its rows: the column's caption and a mark when it is visible.
spListHeaders editor_columns() {
    spListHeaders columns;
    columns.Add({.key = u"Text"_s, .caption = u"项目"_s, .Width = 3000});
    columns.Add({.key = u"Visible"_s,
                 .caption = u"是否可见"_s,
                 .Width = 1200,
                 .FormatStr = u"\\ ;\\√"_s,
                 .FormatType = static_cast<qint16>(grid_column::Format::custom),
                 .TAlignment = static_cast<qint16>(grid_column::Alignment::centre)});
    columns.Add({.key = u"Key"_s, .Visible = 0});
    columns.Add({.key = u"CanSet"_s, .Visible = 0});
    return columns;
}

} // namespace

frmSetList::frmSetList(spListHeaders& headers, QWidget* parent)
    : QDialog(parent), headers_(headers), MSHFlexGrid1(new data_grid(this)) {
    setWindowTitle(u"列表设置"_s);
    MSHFlexGrid1->setObjectName(u"MSHFlexGrid1"_s);
    MSHFlexGrid1->setAccessibleName(windowTitle());
    auto* layout = new QVBoxLayout(this);
    auto* body = new QHBoxLayout;
    layout->addLayout(body);
    body->addWidget(MSHFlexGrid1);
    auto* movers = new QVBoxLayout;
    body->addLayout(movers);
    add_mover(*movers, u"cmdUP"_s, u"向上移动"_s, -1);
    add_mover(*movers, u"cmdDown"_s, u"向下移动"_s, 1);
    movers->addStretch();
    const QPushButton* ok = add_buttons(*this, *layout, button_set::confirm);

    fill();
    connect(MSHFlexGrid1, &data_grid::toggled, this, guarded([this] { toggle(); }));
    connect(ok, &QPushButton::clicked, this, guarded([this] { confirm(); }));
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 22);
}

void frmSetList::add_mover(QBoxLayout& movers, const QString& name, const QString& caption,
                           int step) {
    auto* mover = new QPushButton(caption, this);
    mover->setObjectName(name);
    movers.addWidget(mover);
    connect(mover, &QPushButton::clicked, this, guarded([this, step] { move(step); }));
}

frmSetList::~frmSetList() {
    MSHFlexGrid1->set_recordset(nullptr);
}

void frmSetList::fill() {
    rows_.OpenInMemory(fields);
    for (const spListHeader& column : headers_) {
        rows_.AddNew();
        rows_.set_Fields(u"Text"_s, column.caption);
        rows_.set_Fields(u"Visible"_s, column.Visible != 0 ? -1 : 0);
        rows_.set_Fields(u"Key"_s, column.key);
        rows_.set_Fields(u"CanSet"_s, column.CanSet);
    }
    rows_.set_position(0);
    apply_view(editor_columns(), *MSHFlexGrid1);
    MSHFlexGrid1->set_recordset(&rows_);
}

void frmSetList::toggle() {
    if (!rows_.Bof() && !rows_.Eof() && rows_.Fields(u"CanSet"_s).toInt() != 0) {
        rows_.set_Fields(u"Visible"_s, rows_.Fields(u"Visible"_s).toInt() != 0 ? 0 : -1);
        MSHFlexGrid1->viewport()->update();
    }
}

void frmSetList::move(int step) {
    const qsizetype row = rows_.position();
    const qsizetype other = row + step;
    if (row < rows_.RecordCount() && other >= 0 && other < rows_.RecordCount()) {
        ExchPlace(row, other);
        rows_.set_position(other);
        MSHFlexGrid1->show_position();
        MSHFlexGrid1->viewport()->update();
    }
}

void frmSetList::ExchPlace(qsizetype row, qsizetype other) {
    for (const QString& field : fields) {
        rows_.set_position(row);
        const QVariant value = rows_.Fields(field);
        rows_.set_position(other);
        const QVariant other_value = rows_.Fields(field);
        rows_.set_Fields(field, value);
        rows_.set_position(row);
        rows_.set_Fields(field, other_value);
    }
}

bool frmSetList::hides_all() const {
    const qsizetype visible = rows_.column(u"Visible");
    for (qsizetype row = 0; row < rows_.RecordCount(); ++row) {
        if (rows_.store().integer(row, visible) != 0) {
            return false;
        }
    }
    return rows_.RecordCount() > 0;
}

void frmSetList::confirm() {
    if (hides_all()) {
        msgbox::information(u"至少要显示一列，请检查！"_s, u"提示"_s);
        return;
    }
    for (qsizetype row = 0; row < rows_.RecordCount(); ++row) {
        rows_.set_position(row);
        spListHeader& column = headers_.Item(headers_.SUBIndex(rows_.Fields(u"Key"_s).toString()));
        column.Visible = rows_.Fields(u"Visible"_s).toInt() != 0 ? qint16{-1} : qint16{0};
        column.POS = static_cast<qint16>(row + 1);
    }
    confirmed = true;
    accept();
}
