// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/column_chooser.h"

class QLineEdit;

/// A search: for what, in which column, and which way.
struct search_request {
    QString key; ///< the column's
    QString value;
    bool forward = true;

    /// What a record set looks for: KEY='value'.
    [[nodiscard]] QString criterion() const;
};

/// Asks for a find criterion, KEY='value', and a direction.
class frmFind : public column_chooser {
    Q_OBJECT

public:
    bool forward = true;

    /// Begins with what was looked for `last`.
    explicit frmFind(const spListHeaders& headers, const search_request& last = {},
                     QWidget* parent = nullptr);
    /// What was confirmed.
    [[nodiscard]] search_request request() const;

private:
    [[nodiscard]] QString make_result(const QString& key) const override;

    QLineEdit* txtV;
};
