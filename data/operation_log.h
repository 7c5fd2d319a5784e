// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QVariant>

class Recordset;
class spListHeaders;

/// Which rows of the operation log are shown.
struct operation_condition {
    QVariant userid = 0; ///< the number as typed, or 0 for every operator
    QDateTime start;
    QDateTime end; ///< both ends are part of the range
};

/// The view number of the operation log.
inline constexpr const char16_t* operation_log_view = u"operateview";

/// The condition is kept in the view definition: the operator in column "userid", the range in
/// "optime".
void store_condition(spListHeaders& headers, const operation_condition& condition);

/// Opens the rows that match the definition's condition. Throws DataError.
void open_operation_log(const spListHeaders& headers, Recordset& rows);
