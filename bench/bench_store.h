// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTemporaryDir>

/// The most rows that a 16-bit key can number.
inline constexpr int most_rows = 32767;

/// A database in a folder of its own, named by `strconn`, filled in one transaction.
class bench_store {
public:
    bench_store();
    ~bench_store();
    Q_DISABLE_COPY_MOVE(bench_store)

    [[nodiscard]] QString folder() const { return folder_.path(); }
    [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("sms.old.mdb")); }

    static void fill_customers(int rows);
    /// Pending messages that were due long ago.
    static void fill_messages(int rows);

private:
    QTemporaryDir folder_;
};
