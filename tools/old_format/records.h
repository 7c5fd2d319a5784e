// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace old_format {

/// What an old database holds, record by record. It is read by a process of its own, which a
/// damaged file may crash or keep busy; nothing that comes from there is taken on trust.
class records {
public:
    struct record {
        enum class Kind { table, row, end };
        Kind kind = Kind::end;
        QString table;       ///< the one it belongs to
        QStringList columns; ///< of the table
        QJsonArray values;   ///< of the row, one a column: Null, truth value, number, text, or {}
    };

    records(const QString& path, const QString& charset);
    ~records();
    Q_DISABLE_COPY_MOVE(records)

    /// The next record: a table, then its rows, then the next table; at last `end`. Throws failure
    /// when the file cannot be used.
    [[nodiscard]] record next();

private:
    [[nodiscard]] QJsonArray next_line();
    [[noreturn]] void refuse_damaged(const QString& how) const;

    QString path_;
    qint64 allowance_; ///< how many bytes may still come
    record current_;
    QByteArray pending_;  ///< what has come from the reader
    qsizetype taken_ = 0; ///< how much of it has been used
    QProcess reader_;
};

} // namespace old_format
