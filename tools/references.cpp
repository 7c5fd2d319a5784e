// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/references.h"

using namespace Qt::StringLiterals;
using enum reference::Dangling;

const QList<reference>& references() {
    // Where the screens let 0 stand, it means none.
    static const QList<reference> all{
        {u"cgroup", u"cid", u"customer", u"cid", leftover, u"0"},
        {u"cgroup", u"ccid", u"cusclass", u"ccid", leftover, u"0"},
        {u"sendsms", u"cid", u"customer", u"cid", history, u"cid IS 0"},
        {u"gsendsms", u"cid", u"cusclass", u"ccid", history, u"cid IS 0 OR isall <> 0"},
        {u"rights", u"userid", u"users", u"userid", leftover, u"0"},
        {u"rights", u"funid", u"Functions", u"FunId", fault, u"0"},
        {u"operatelog", u"userid", u"users", u"userid", history, u"userid IS 0"},
        {u"viewitems", u"ViewNo", u"viewdef", u"ViewNo", fault, u"0"},
    };
    return all;
}

QString dangles(const reference& checked) {
    return u"NOT (%1) AND NOT EXISTS (SELECT 1 FROM %2 WHERE %2.%3 = %4.%5)"_s.arg(
        checked.unless, checked.target, checked.target_key, checked.table, checked.column);
}
