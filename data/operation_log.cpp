// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/operation_log.h"

#include "data/fmtdatetime.h"
#include "data/spListHeaders.h"
#include "data/strconn.h"
#include "platform/database/recordset.h"

using namespace Qt::StringLiterals;

namespace {

QVariant condition_of(const spListHeaders& headers, const QString& key,
                      QVariant spListHeader::*member) {
    const qint16 position = headers.SUBIndex(key);
    return position == 0 ? QVariant() : headers.Item(position).*member;
}

} // namespace

void store_condition(spListHeaders& headers, const operation_condition& condition) {
    if (const qint16 user = headers.SUBIndex(u"userid"_s)) {
        headers.Item(user).condValue1 = condition.userid;
    }
    if (const qint16 time = headers.SUBIndex(u"optime"_s)) {
        headers.Item(time).condValue1 = fmtdatetime(condition.start);
        headers.Item(time).CondValue2 = fmtdatetime(condition.end);
    }
}

void open_operation_log(const spListHeaders& headers, Recordset& rows) {
    const QString start = condition_of(headers, u"optime"_s, &spListHeader::condValue1).toString();
    const QString end = condition_of(headers, u"optime"_s, &spListHeader::CondValue2).toString();
    const int user = condition_of(headers, u"userid"_s, &spListHeader::condValue1).toInt();
    rows.set_ActiveConnection(strconn);
    rows.LockType = Recordset::LockTypeEnum::read_only;
    if (user == 0) {
        rows.Open(
            u"select * from vwoperate where optime >= #%1# and optime <= #%2#"_s.arg(start, end));
    } else {
        rows.Open(
            u"select * from vwoperate where optime >= #%1# and optime <= #%2# and userid=%3"_s.arg(
                start, end, QString::number(user)));
    }
    rows.detach();
}
