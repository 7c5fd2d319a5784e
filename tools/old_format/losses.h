// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <utility>

namespace old_format {

/// What an import could not carry over, rows that share a reason together.
class losses {
public:
    /// `what` names a table, or a column of one; `row` is the number of the row.
    void add(const QString& what, const QString& reason, qint64 row);
    /// Something as a whole.
    void add(const QString& what, const QString& reason);

    [[nodiscard]] bool isEmpty() const { return rows_.isEmpty(); }
    /// A line each; nothing in them can steer a terminal.
    [[nodiscard]] QString lines() const;

private:
    QMap<std::pair<QString, QString>, QList<qint64>> rows_;
};

} // namespace old_format
