// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/operation_log.h"

#include <QString>

class Recordset;
class spListHeaders;
class vc_in;

/// Where the rows of a list come from: its controller, or the operation log, which is asked for by
/// a condition.
class list_source {
public:
    list_source(vc_in& controller, QString view_no);

    [[nodiscard]] vc_in& controller() const { return controller_; }
    [[nodiscard]] const QString& view_no() const { return view_no_; }

    /// Today's operations of everybody.
    void reset_condition();
    /// Asks for the condition of the operation log and keeps it in the view definition.
    void ask_condition(spListHeaders& headers);
    /// Opens the record set on the rows. Throws DataError.
    void open(const spListHeaders& headers, Recordset& rows) const;

private:
    [[nodiscard]] bool is_operation_log() const { return view_no_ == operation_log_view; }

    vc_in& controller_;
    QString view_no_;
    operation_condition condition_; ///< of the operation log alone
};
