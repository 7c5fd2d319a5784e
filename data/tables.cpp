// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/tables.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using kind = column_kind;

constexpr table_column required(QStringView name, column_kind holds) {
    return {name, holds, {}, {}, {}, true};
}

constexpr auto smsmodels = std::to_array<table_column>({
    {u"mid", kind::key},
    {u"text"},
});
constexpr auto cusclass = std::to_array<table_column>({
    {u"ccid", kind::key},
    {u"cname"},
});
constexpr auto customer = std::to_array<table_column>({
    {u"cid", kind::key},
    {u"birth"},
    {u"cname"},
    {u"sex"},
    {u"mobile"},
    {u"phone"},
    {u"memo"},
});
constexpr auto parameters = std::to_array<table_column>({
    {u"ip"},
    {u"port", kind::number},
});
constexpr auto cgroup = std::to_array<table_column>({
    {u"gid", kind::key},
    {u"cid", kind::number, u"customer", u"cid"},
    {u"ccid", kind::number, u"cusclass", u"ccid"},
});
// Where the screens let 0 stand, it means none.
constexpr auto sendsms = std::to_array<table_column>({
    {u"smsid", kind::key},
    {u"mobile"},
    {u"sms"},
    {u"cid", kind::number, u"customer", u"cid", u"cid = 0"},
    required(u"sendisok", kind::flag),
    required(u"smsfrom", kind::flag),
    required(u"imsend", kind::flag),
    {u"rtime", kind::moment},
    {u"stime", kind::moment},
});
constexpr auto recvedsms = std::to_array<table_column>({
    {u"smsrid", kind::key},
    {u"mobile"},
    {u"sms"},
    {u"rtime", kind::moment},
    required(u"readed", kind::mark),
});
constexpr auto gsendsms = std::to_array<table_column>({
    {u"gsid", kind::key},
    {u"cid", kind::number, u"cusclass", u"ccid", u"cid = 0 OR isall <> 0"},
    {u"sms"},
    required(u"imsend", kind::flag),
    required(u"isall", kind::flag),
    {u"stime", kind::moment},
    {u"rtime", kind::moment},
});
constexpr auto users = std::to_array<table_column>({
    {u"userid", kind::key},
    {u"username"},
    {u"password"},
});
constexpr auto functions = std::to_array<table_column>({
    {u"FunId", kind::key},
    {u"funName"},
});
constexpr auto rights = std::to_array<table_column>({
    {u"rid", kind::key},
    {u"userid", kind::number, u"users", u"userid"},
    {u"funid", kind::number, u"Functions", u"FunId"},
});
constexpr auto operatelog = std::to_array<table_column>({
    {u"opid", kind::key},
    {u"optime", kind::moment},
    {u"userid", kind::number, u"users", u"userid", u"userid = 0"},
    {u"operation"},
});
constexpr auto consts = std::to_array<table_column>({
    {u"constid", kind::key},
    {u"no"},
    {u"value"},
    {u"dispvalue"},
});
constexpr auto viewdef = std::to_array<table_column>({
    {u"viewid", kind::key},
    {u"ViewNo"},
    {u"viewName"},
    {u"other"},
    {u"readonly", kind::flag},
    {u"isTwoS", kind::flag},
});
constexpr auto viewitems = std::to_array<table_column>({
    {u"itemid", kind::key},
    {u"ViewNo", kind::text, u"viewdef", u"ViewNo"},
    {u"pos", kind::number},
    {u"keyword"},
    {u"caption"},
    {u"Width", kind::number},
    {u"FormatStr"},
    {u"ReadOnly", kind::flag},
    {u"DataType", kind::number},
    {u"DataWidth", kind::number},
    {u"RefType", kind::number},
    {u"PointNum", kind::number},
    {u"Other1"},
    {u"Other2"},
    {u"HAlignment", kind::number},
    {u"TAlignment", kind::number},
    {u"CanSet", kind::flag},
    {u"ColMerge", kind::flag},
    {u"Visible", kind::flag},
    {u"DispTrue"},
    {u"DispFalse"},
    {u"DispNull"},
    {u"CanFilter", kind::flag},
    {u"condValue1"},
    {u"CondValue2"},
    {u"FormatType", kind::number},
});

constexpr auto tables = std::to_array<table_description>({
    {.name = u"smsmodels", .columns = smsmodels},
    {.name = u"cusclass", .columns = cusclass},
    {.name = u"customer", .columns = customer},
    {.name = u"parameters", .columns = parameters},
    {.name = u"cgroup", .columns = cgroup, .is_relation = true, .closes_up = true},
    {.name = u"sendsms", .columns = sendsms, .closes_up = true},
    {.name = u"recvedsms", .columns = recvedsms, .closes_up = true},
    {.name = u"gsendsms", .columns = gsendsms, .closes_up = true},
    {.name = u"users", .columns = users},
    {.name = u"Functions", .columns = functions, .is_programs_own = true},
    {.name = u"rights", .columns = rights, .is_relation = true, .closes_up = true},
    {.name = u"operatelog", .columns = operatelog, .is_programs_own = true, .closes_up = true},
    {.name = u"CONSTS", .columns = consts, .is_programs_own = true},
    {.name = u"viewdef", .columns = viewdef, .is_programs_own = true},
    {.name = u"viewitems", .columns = viewitems, .is_programs_own = true},
});

} // namespace

QStringView table_description::key() const {
    const auto found = std::find_if(columns.begin(), columns.end(), [](const table_column& column) {
        return column.kind == column_kind::key;
    });
    return found == columns.end() ? QStringView() : found->name;
}

std::span<const table_description> all_tables() {
    return tables;
}

const table_description* find_table(QStringView name) {
    const auto found =
        std::find_if(tables.begin(), tables.end(), [name](const table_description& table) {
            return table.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == tables.end() ? nullptr : &*found;
}

QString reference::dangles() const {
    return u"(%1) IS NOT TRUE AND NOT EXISTS (SELECT 1 FROM %2 WHERE %2.%3 = %4.%5)"_s.arg(
        column.none_where.isEmpty() ? u"FALSE" : column.none_where, column.target,
        column.target_key, table.name, column.name);
}

QList<reference> all_references() {
    QList<reference> all;
    for (const table_description& table : tables) {
        for (const table_column& column : table.columns) {
            if (const table_description* target = find_table(column.target)) {
                const dangling otherwise =
                    table.is_relation ? dangling::leftover : dangling::history;
                all.append({table, column, target->is_programs_own ? dangling::fault : otherwise});
            }
        }
    }
    return all;
}
