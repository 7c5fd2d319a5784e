// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/delivered_views.h"

#include "data/literals.h"
#include "platform/database/physical_database.h"

#include <QStringView>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// What a column holds; decides its format and alignment.
enum class shape { number, text, moment, flag };

struct view_row {
    QStringView view_no;
    QStringView name;
    QStringView mode;
};

struct column_row {
    QStringView view_no;
    QStringView keyword;
    QStringView caption;
    int width = 0; ///< twips
    shape holds = shape::text;
    QStringView true_text = u"";
    QStringView false_text = u"";
};

constexpr auto views = std::to_array<view_row>({
    {u"v_smsm", u"常用短语", u"all"},
    {u"v_cusclass", u"客户分类目录", u"all"},
    {u"v_customer", u"客户资料", u"all"},
    {u"v_group", u"客户分组", u"all"},
    {u"v_sendsms", u"短信单发", u"all"},
    {u"v_gsendsms", u"短信群发", u"all"},
    {u"v_recvedsms", u"收到的短信", u"all"},
    {u"VUsers", u"操作员列表", u"all"},
    {u"vrights", u"权限列表", u"readonly"},
    {u"operateview", u"操作日志", u"readonly"},
});

constexpr auto columns = std::to_array<column_row>({
    {u"v_smsm", u"mid", u"编号", 900, shape::number},
    {u"v_smsm", u"text", u"短语", 10500, shape::text},

    {u"v_cusclass", u"ccid", u"编号", 900, shape::number},
    {u"v_cusclass", u"cname", u"名称", 4500, shape::text},

    {u"v_customer", u"cid", u"编号", 900, shape::number},
    {u"v_customer", u"cname", u"客户名称", 1950, shape::text},
    {u"v_customer", u"mobile", u"手机", 1950, shape::text},
    {u"v_customer", u"sex", u"性别", 750, shape::text},
    {u"v_customer", u"birth", u"生日", 1500, shape::text},
    {u"v_customer", u"phone", u"电话", 2100, shape::text},
    {u"v_customer", u"memo", u"备注", 4500, shape::text},

    {u"v_group", u"gid", u"编号", 900, shape::number},
    {u"v_group", u"ccid", u"分类编号", 1200, shape::number},
    {u"v_group", u"cname", u"分组名称", 2700, shape::text},
    {u"v_group", u"cid", u"客户编号", 1200, shape::number},
    {u"v_group", u"cusname", u"客户名称", 1950, shape::text},
    {u"v_group", u"mobile", u"手机", 1950, shape::text},

    {u"v_sendsms", u"smsid", u"编号", 900, shape::number},
    {u"v_sendsms", u"cname", u"客户名称", 1650, shape::text},
    {u"v_sendsms", u"mobile", u"手机号码", 1800, shape::text},
    {u"v_sendsms", u"sms", u"短信", 4800, shape::text},
    {u"v_sendsms", u"sendisok", u"状态", 900, shape::flag, u"已发送", u"待发送"},
    {u"v_sendsms", u"stime", u"发送时间", 2400, shape::moment},
    {u"v_sendsms", u"imsend", u"方式", 750, shape::flag, u"立即", u"定时"},
    {u"v_sendsms", u"smsfrom", u"来源", 750, shape::flag, u"群发", u"单发"},
    {u"v_sendsms", u"rtime", u"录入时间", 2400, shape::moment},

    {u"v_gsendsms", u"gsid", u"编号", 900, shape::number},
    {u"v_gsendsms", u"isall", u"所有客户", 1200, shape::flag, u"√", u""},
    {u"v_gsendsms", u"cname", u"群组名称", 2100, shape::text},
    {u"v_gsendsms", u"sms", u"短信", 4800, shape::text},
    {u"v_gsendsms", u"stime", u"发送时间", 2400, shape::moment},
    {u"v_gsendsms", u"imsend", u"方式", 750, shape::flag, u"立即", u"定时"},
    {u"v_gsendsms", u"rtime", u"录入时间", 2400, shape::moment},

    {u"v_recvedsms", u"smsrid", u"编号", 900, shape::number},
    {u"v_recvedsms", u"cname", u"客户名称", 1650, shape::text},
    {u"v_recvedsms", u"mobile", u"手机号码", 1800, shape::text},
    {u"v_recvedsms", u"sms", u"短信", 5700, shape::text},
    {u"v_recvedsms", u"rtime", u"接收时间", 2400, shape::moment},
    {u"v_recvedsms", u"readed", u"已读", 750, shape::flag, u"√", u""},

    {u"VUsers", u"userid", u"编号", 900, shape::number},
    {u"VUsers", u"username", u"操作员名称", 3000, shape::text},

    {u"vrights", u"funid", u"编号", 750, shape::number},
    {u"vrights", u"funName", u"功能", 2700, shape::text},
    {u"vrights", u"Selected", u"权限", 750, shape::flag, u"√", u""},

    {u"operateview", u"optime", u"时间", 2400, shape::moment},
    {u"operateview", u"userid", u"操作员号", 1200, shape::number},
    {u"operateview", u"username", u"操作员", 1650, shape::text},
    {u"operateview", u"operation", u"操作", 6000, shape::text},
});

// The codes of the data grid: alignments 0 left, 1 right, 2 centre, 3 general; formats 0 general, 1
// custom, 5 Boolean.
QString heading_alignment_of(shape holds) {
    return holds == shape::flag ? u"2"_s : holds == shape::number ? u"1"_s : u"0"_s;
}

QString alignment_of(shape holds) {
    return holds == shape::flag ? u"2"_s : holds == shape::text ? u"0"_s : u"3"_s;
}

QString format_of(shape holds) {
    return holds == shape::flag ? u"5"_s : holds == shape::moment ? u"1"_s : u"0"_s;
}

void write_column(physical_database& database, const column_row& column, int position) {
    const QString format = column.holds == shape::moment ? u"yyyy-mm-dd hh:mm:ss"_s : QString();
    database.execute(
        u"INSERT INTO viewitems (ViewNo, pos, keyword, caption, Width, FormatStr, ReadOnly, DataType, DataWidth, RefType, PointNum, Other1, Other2, HAlignment, TAlignment, CanSet, ColMerge, Visible, DispTrue, DispFalse, DispNull, CanFilter, condValue1, CondValue2, FormatType) values (%1,%2,%3,%4,%5,%6,-1,%7,0,0,0,'','',%8,%9,-1,0,-1,%10,%11,'',-1,'','',%12)"_s
            .arg(literal(column.view_no.toString()), QString::number(position),
                 literal(column.keyword.toString()), literal(column.caption.toString()),
                 QString::number(column.width), literal(format),
                 QString::number(static_cast<int>(column.holds)),
                 heading_alignment_of(column.holds), alignment_of(column.holds),
                 literal(column.true_text.toString()), literal(column.false_text.toString()),
                 format_of(column.holds)));
}

void write_columns(physical_database& database, const view_row& view) {
    int position = 0;
    for (const column_row& column : columns) {
        if (column.view_no == view.view_no) {
            write_column(database, column, ++position);
        }
    }
}

} // namespace

void bring_in_delivered_views(physical_database& database) {
    const QString defined = u"SELECT count(*) FROM viewdef WHERE ViewNo=%1"_s;
    const QString columns_of = u"SELECT count(*) FROM viewitems WHERE ViewNo=%1"_s;
    for (const view_row& view : views) {
        const QString view_no = literal(view.view_no.toString());
        if (database.number(defined.arg(view_no)) == 0) {
            database.execute(
                u"INSERT INTO viewdef (ViewNo, viewName, other, readonly, isTwoS) values (%1,%2,%3,-1,0)"_s
                    .arg(view_no, literal(view.name.toString()), literal(view.mode.toString())));
        }
        if (database.number(columns_of.arg(view_no)) == 0) {
            write_columns(database, view);
        }
    }
}
