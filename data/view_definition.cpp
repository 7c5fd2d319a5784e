// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/view_definition.h"

#include "data/literals.h"
#include "platform/conversion.h"
#include "platform/database/recordset.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct text_field {
    QStringView column;
    QString spListHeader::*member = nullptr;
};

struct number_field {
    QStringView column;
    qint16 spListHeader::*member = nullptr;
};

// How the fields of a column stand in `viewitems`; reading and writing both follow these tables.
constexpr auto text_fields = std::to_array<text_field>({
    {u"keyword", &spListHeader::key},
    {u"caption", &spListHeader::caption},
    {u"FormatStr", &spListHeader::FormatStr},
    {u"Other1", &spListHeader::Other1},
    {u"Other2", &spListHeader::Other2},
    {u"DispTrue", &spListHeader::DispTrue},
    {u"DispFalse", &spListHeader::DispFalse},
    {u"DispNull", &spListHeader::DispNull},
});

constexpr auto number_fields = std::to_array<number_field>({
    {u"Width", &spListHeader::Width},
    {u"ReadOnly", &spListHeader::ReadOnly},
    {u"DataType", &spListHeader::DataType},
    {u"DataWidth", &spListHeader::DataWidth},
    {u"RefType", &spListHeader::RefType},
    {u"PointNum", &spListHeader::PointNum},
    {u"POS", &spListHeader::POS},
    {u"HAlignment", &spListHeader::HAlignment},
    {u"TAlignment", &spListHeader::TAlignment},
    {u"CanSet", &spListHeader::CanSet},
    {u"ColMerge", &spListHeader::ColMerge},
    {u"Visible", &spListHeader::Visible},
    {u"CanFilter", &spListHeader::CanFilter},
    {u"FormatType", &spListHeader::FormatType},
});

bool is_empty(const Recordset& rs) {
    return rs.Bof() && rs.Eof();
}

spListHeader read_column(const Recordset& row) {
    spListHeader column;
    for (const text_field& field : text_fields) {
        column.*field.member = row.Fields(field.column.toString()).toString();
    }
    for (const number_field& field : number_fields) {
        const QVariant value = row.Fields(field.column.toString());
        column.*field.member = value.isNull() ? qint16{0} : to_int16(value);
    }
    column.condValue1 = row.Fields(u"condValue1"_s);
    column.CondValue2 = row.Fields(u"CondValue2"_s);
    return column;
}

void write_column(Recordset& row, const spListHeader& column, const QString& view_no) {
    for (const text_field& field : text_fields) {
        row.set_Fields(field.column.toString(), column.*field.member);
    }
    for (const number_field& field : number_fields) {
        row.set_Fields(field.column.toString(), column.*field.member);
    }
    row.set_Fields(u"condValue1"_s, column.condValue1);
    row.set_Fields(u"ViewNo"_s, view_no);
    row.Update();
}

void open_updatable(Recordset& rs, const Connection& connection, const QString& statement) {
    rs.LockType = Recordset::LockTypeEnum::optimistic;
    rs.set_ActiveConnection(connection);
    rs.Open(statement);
}

} // namespace

bool is_secret(const QString& column_key) {
    return column_key.compare("password"_L1, Qt::CaseInsensitive) == 0;
}

void load_view(spListHeaders& headers, const QString& connection_string, const QString& view_no) {
    Recordset view;
    view.set_ActiveConnection(connection_string);
    view.Open(u"select * from viewdef where ViewNo=%1"_s.arg(literal(view_no)));
    Recordset items;
    items.set_ActiveConnection(connection_string);
    items.Open(u"select * from viewitems where ViewNo=%1 order by pos"_s.arg(literal(view_no)));

    headers = spListHeaders();
    headers.ViewNo = view_no;
    if (is_empty(view)) {
        return;
    }
    headers.isTwoS = view.Fields(u"isTwoS"_s);
    headers.other = view.Fields(u"other"_s).toString();
    headers.vName = view.Fields(u"viewName"_s).toString();
    headers.ViewNo = view.Fields(u"ViewNo"_s).toString();
    headers.ReadOnly = view.Fields(u"readonly"_s).toInt() != 0;
    for (; !items.Eof(); items.MoveNext()) {
        if (const spListHeader column = read_column(items); !is_secret(column.key)) {
            headers.Add(column);
        }
    }
}

void save_view(const spListHeaders& headers, const QString& connection_string,
               const QString& view_no) {
    Connection connection;
    connection.ConnectionString = connection_string;
    connection.Open();
    transaction saving(connection.database());
    Recordset view;
    open_updatable(view, connection,
                   u"select * from viewdef where ViewNo=%1"_s.arg(literal(view_no)));
    const bool is_new = is_empty(view);
    if (is_new) {
        view.AddNew();
    }
    view.set_Fields(u"isTwoS"_s, headers.isTwoS);
    view.set_Fields(u"other"_s, headers.other);
    view.set_Fields(u"viewName"_s, headers.vName);
    view.set_Fields(u"viewno"_s, headers.ViewNo);
    view.set_Fields(u"readonly"_s, headers.ReadOnly ? -1 : 0);
    view.Update();

    Recordset items;
    open_updatable(items, connection,
                   u"select * from viewitems where ViewNo=%1"_s.arg(literal(view_no)));
    for (const spListHeader& column : headers) {
        if (is_new) {
            items.AddNew();
        } else {
            items.MoveFirst();
            items.Find(u"keyword= '%1'"_s.arg(column.key));
        }
        write_column(items, column, view_no);
    }
    saving.commit();
}
